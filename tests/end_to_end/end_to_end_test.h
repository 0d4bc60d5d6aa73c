// The real program in a real window.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/end_to_end/accessible.h"
#include "tests/end_to_end/desktop.h"
#include "tests/support/panel_home.h"

// Main window and dialogs are known by their titles. Verbs wait for what they
// need and fail the test when it does not come.
class EndToEndTest : public testing::Test {
 protected:
  static constexpr char kMainWindow[] = "Tessary Corvane Player Preferences";

  // A program that still runs is closed by its button, and must then end
  // well, having written nothing.
  ~EndToEndTest() override;

  // Starts the program and sees its main window.
  void Start(const std::vector<std::string>& options = {});
  // Waits until the window of that title is active; it becomes the one that
  // the other verbs mean.
  void See(const std::string& title);
  void SeeNoMore(const std::string& title);

  [[nodiscard]] const Accessible& Window() const { return window_; }
  // Something that shows in the window seen last.
  [[nodiscard]] Accessible Get(const std::string& role,
                               const std::string& name);
  // Push buttons, radio buttons, boxes and page tabs.
  void Click(const std::string& name, const std::string& role = "push button");
  // Gives the keyboard to it.
  void Focus(const std::string& role, const std::string& name);
  void ClickAt(const Accessible& place, const char* modifier = nullptr);
  void Press(const std::string& key) { desktop_.Press(key); }
  void Type(const std::string& text) { desktop_.Type(text); }

  // What comes to stand on disk.
  void ExpectStored(const std::string& site, const char* key,
                    const std::string& value);
  // Closes the main window by its button.
  void Close();
  void ExpectQuietEnd();

  [[nodiscard]] static std::string Program();

  Desktop desktop_;
  PanelHome home_;
  std::unique_ptr<Process> program_;
  // What the program may write to standard error: the start of every line.
  std::string expected_errors_;

 private:
  [[nodiscard]] Accessible ShownWindow(const std::string& title);

  Accessible window_;
};
