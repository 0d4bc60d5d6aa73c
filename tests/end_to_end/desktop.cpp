#include "tests/end_to_end/desktop.h"

#include <gtest/gtest.h>

#include <cstdlib>

// Last: they define common words as macros.
#include <X11/Xatom.h>
#include <X11/extensions/XTest.h>

namespace {

// By which a server says where it is to be reached.
std::string FirstLine(Process* server) {
  EXPECT_TRUE(Eventually([&] {
    return server->Output().find('\n') != std::string::npos;
  })) << server->Errors();
  return server->Output().substr(0, server->Output().find('\n'));
}

// A window manager announces itself there.
bool HasWindowManager(Display* display) {
  Atom type = None;
  int format = 0;
  unsigned long count = 0;
  unsigned long rest = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(display, DefaultRootWindow(display),
                     XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False), 0,
                     1, False, XA_WINDOW, &type, &format, &count, &rest,
                     &value);
  if (value) XFree(value);
  return count == 1;
}

}  // namespace

Desktop::Desktop() {
  std::string pattern = std::filesystem::temp_directory_path() / "desk-XXXXXX";
  runtime_directory_ = mkdtemp(pattern.data());
  for (const char* name : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME",
                           "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    setenv(name, runtime_directory_.c_str(), 1);
  }
  for (const char* name : {"AT_SPI_BUS_ADDRESS", "NO_AT_BRIDGE", "XAUTHORITY",
                           "GTK2_RC_FILES", "GTK_MODULES", "LANGUAGE"}) {
    unsetenv(name);
  }
  setenv("LC_ALL", "C.UTF-8", 1);

  server_ = std::make_unique<Process>(
      std::vector<std::string>{"Xvfb", "-displayfd", "1", "-screen", "0",
                               "1280x1024x24", "-nolisten", "tcp", "-noreset"});
  setenv("DISPLAY", (":" + FirstLine(server_.get())).c_str(), 1);
  bus_ = std::make_unique<Process>(std::vector<std::string>{
      "dbus-daemon", "--session", "--nofork", "--print-address=1"});
  setenv("DBUS_SESSION_BUS_ADDRESS", FirstLine(bus_.get()).c_str(), 1);

  display_ = XOpenDisplay(nullptr);
  window_manager_ = std::make_unique<Process>(
      std::vector<std::string>{"openbox", "--sm-disable"});
  EXPECT_TRUE(Eventually([&] { return HasWindowManager(display_); }))
      << window_manager_->Errors();
}

Desktop::~Desktop() {
  XCloseDisplay(display_);
  window_manager_.reset();
  bus_.reset();
  server_.reset();
  std::filesystem::remove_all(runtime_directory_);
}

void Desktop::SendKey(const std::string& name, bool press) {
  const KeyCode code =
      XKeysymToKeycode(display_, XStringToKeysym(name.c_str()));
  ASSERT_NE(code, 0) << name;
  XTestFakeKeyEvent(display_, code, press, CurrentTime);
}

void Desktop::Press(const std::string& key) {
  const std::size_t plus = key.find('+');
  const std::string modifier = plus == key.npos                ? ""
                               : key.substr(0, plus) == "alt"  ? "Alt_L"
                               : key.substr(0, plus) == "ctrl" ? "Control_L"
                                                               : "Shift_L";
  const std::string name = plus == key.npos ? key : key.substr(plus + 1);
  if (!modifier.empty()) SendKey(modifier, true);
  SendKey(name, true);
  SendKey(name, false);
  if (!modifier.empty()) SendKey(modifier, false);
  XSync(display_, False);
}

void Desktop::Type(const std::string& text) {
  for (const char letter : text) {
    const std::string name = letter == '.'   ? "period"
                             : letter == '/' ? "slash"
                             : letter == '-' ? "minus"
                                             : std::string(1, letter);
    Press(name);
  }
}

void Desktop::Click(int x, int y, const char* modifier) {
  XTestFakeMotionEvent(display_, -1, x, y, CurrentTime);
  if (modifier) SendKey(modifier, true);
  XTestFakeButtonEvent(display_, 1, True, CurrentTime);
  XTestFakeButtonEvent(display_, 1, False, CurrentTime);
  if (modifier) SendKey(modifier, false);
  XSync(display_, False);
}
