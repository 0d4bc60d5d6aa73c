// Drives the real program in a real window.
#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <future>
#include <set>
#include <string>
#include <vector>

#include "tests/end_to_end/accessible.h"
#include "tests/support/panel_home.h"
#include "tests/support/program_run.h"

// Needs a desktop of its own. Finds the main window and dialogs by their
// titles. Verbs wait for the widgets that they need, and fail the test when
// these do not appear. Any warning of the toolkit ends the program.
class EndToEndTest : public testing::Test {
 protected:
  static constexpr char kMainWindow[] = "Tessary Corvane Player Preferences";
  static constexpr const auto& kMaster = PanelHome::kMaster;

  // Starts the program and waits for its main window.
  void Start(const std::string& options = "");
  // Waits until the window of that title is active. The other verbs then act in
  // it.
  void See(const std::string& title);

  // A visible widget with one of the roles, in the window seen last; a menu
  // item anywhere.
  using Roles = std::set<std::string>;
  [[nodiscard]] Accessible Get(const Roles& roles, const std::string& name);
  // Clicks on a button, check box, page tab or column header.
  void Click(const std::string& name);
  // Clicks with the mouse.
  static void ClickAt(const Accessible& place);
  static void DoubleClickAt(const Accessible& place, int gap_milliseconds);
  // Clicks on the cells with those names, with Ctrl on all but the first.
  void Select(const std::vector<std::string>& rows);
  void ExpectSelected(const std::string& row);
  // Presses keys, named by their symbols: "alt+F4 Return".
  static void Press(const std::string& keys);
  static void Type(const std::string& text);

  // Waits until the value is on disk.
  void ExpectStored(const std::string& site, const char* key,
                    const std::string& value);
  // Waits for the program to end, successfully and with errors that match the
  // pattern.
  void ExpectEnd(const char* errors = "");
  // Closes the main window by its button and waits for the end.
  void Close(const char* errors = "");

  // Closes a program that is still running.
  void TearDown() override;

  // Waits for the condition, at most half a minute. True when it holds.
  [[nodiscard]] static bool Eventually(const std::function<bool()>& condition);

  PanelHome home_;
  Accessible window_;

 private:
  [[nodiscard]] static std::vector<Accessible> ShownWindows(
      const std::string& title);

  std::future<ProgramRun> program_;
};
