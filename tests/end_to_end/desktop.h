// A desktop of the test's own.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "tests/end_to_end/process.h"

// Xlib's Display; its header would redefine common words.
struct _XDisplay;  // NOLINT(bugprone-reserved-identifier)

// A virtual display with a window manager, and a message bus with the
// accessibility services, to be found through the environment. Nothing of the
// desktop of the user who runs the tests is used.
class Desktop {
 public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // "Escape", "alt+F4": names of keysyms, behind modifiers.
  void Press(const std::string& key);
  // Letters, digits and what a key gives without Shift.
  void Type(const std::string& text);
  // At a place of the screen, with the modifier held, if any.
  void Click(int x, int y, const char* modifier = nullptr);

 private:
  void SendKey(const std::string& name, bool press);

  std::filesystem::path runtime_directory_;
  std::unique_ptr<Process> server_;
  std::unique_ptr<Process> bus_;
  std::unique_ptr<Process> window_manager_;
  _XDisplay* display_ = nullptr;
};
