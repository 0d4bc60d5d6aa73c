// The real program in a real window.
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

// Needs a desktop of its own. Main window and dialogs are known by their
// titles. Verbs wait for what they need and fail the test when it does not
// come. Any warning of the toolkit ends the program.
class EndToEndTest : public testing::Test {
 protected:
  static constexpr char kMainWindow[] = "Tessary Corvane Player Preferences";
  static constexpr const auto& kMaster = PanelHome::kMaster;

  // Starts the program and sees its main window.
  void Start(const std::string& options = "");
  // Waits until the window of that title is active; it becomes the one that
  // the other verbs mean.
  void See(const std::string& title);

  // Something with one of the roles that shows in the window seen last; a
  // menu has a window of its own.
  using Roles = std::set<std::string>;
  [[nodiscard]] Accessible Get(const Roles& roles, const std::string& name);
  // Whatever can be clicked on: buttons, boxes, page tabs, column headers.
  void Click(const std::string& name);
  // By the mouse.
  static void ClickAt(const Accessible& place);
  static void DoubleClickAt(const Accessible& place, int gap_milliseconds);
  // Clicks on the cells with those names, with Ctrl on all but the first.
  void Select(const std::vector<std::string>& rows);
  void ExpectSelected(const std::string& row);
  // Keys by the names of their symbols: "alt+F4 Return".
  static void Press(const std::string& keys);
  static void Type(const std::string& text);

  // What comes to stand on disk.
  void ExpectStored(const std::string& site, const char* key,
                    const std::string& value);
  // Waits for the end of a program that has nothing to complain about but, in
  // whole lines, what matches the pattern.
  void ExpectEnd(const char* errors = "");
  // Closes the main window by its button, and expects the end.
  void Close(const char* errors = "");

  // A program that still runs is closed.
  void TearDown() override;

  // Looks again and again, until it holds (true) or half a minute is over.
  [[nodiscard]] static bool Eventually(const std::function<bool()>& condition);

  PanelHome home_;
  Accessible window_;

 private:
  [[nodiscard]] static std::vector<Accessible> ShownWindows(
      const std::string& title);

  std::future<ProgramRun> program_;
};
