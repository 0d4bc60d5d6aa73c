// From the start of the process to the first shown window, and what the
// panel then holds in memory.
#include <X11/Xlib.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

#include "bench/harness.h"
#include "bench/panel_window.h"
#include "bench/private_home.h"

namespace {

constexpr std::size_t kSizes[] = {0, 100, 1000, 10000};
constexpr char kAsFloor[] = "--as-floor";

// Sees every window of the display.
class WindowWatch {
 public:
  WindowWatch() : display_(XOpenDisplay(nullptr)) {
    Check(display_, "XOpenDisplay");
    XSelectInput(display_, DefaultRootWindow(display_), SubstructureNotifyMask);
    XSync(display_, False);
  }
  ~WindowWatch() { XCloseDisplay(display_); }
  WindowWatch(const WindowWatch&) = delete;
  WindowWatch& operator=(const WindowWatch&) = delete;

  void Forget() { XSync(display_, True); }

  void WaitForShownWindow() {
    XEvent event = {};
    do {
      XNextEvent(display_, &event);
    } while (event.type != MapNotify);
  }

 private:
  Display* display_;
};

void RunToShownWindow(WindowWatch* watch, const std::string& program,
                      const char* argument) {
  char* argv[] = {const_cast<char*>(program.c_str()),
                  const_cast<char*>(argument), nullptr};
  pid_t child = 0;
  Check(posix_spawn(&child, argv[0], nullptr, nullptr, argv, environ) == 0,
        argv[0]);
  watch->WaitForShownWindow();
  kill(child, SIGKILL);
  Check(waitpid(child, nullptr, 0) == child, "waitpid");
  watch->Forget();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::strcmp(argv[1], kAsFloor) == 0) {
    (void)StartWithoutStore(&argc, &argv);
    gtk_main();
    return EXIT_SUCCESS;
  }
  Check(argc == 2, "Usage: bench_start_up PANEL");
  const std::string panel = argv[1];
  const std::string self = argv[0];
  PrivateHome home;
  // For the whole run: without a client the display would start anew.
  WindowWatch watch;
  for (const std::size_t size : kSizes) {
    home.MakeSites(size, true);
    Measure({"start to first shown window", size, 11},
            {{kPanel, [&] { RunToShownWindow(&watch, panel, nullptr); }},
             {kFloor, [&] { RunToShownWindow(&watch, self, kAsFloor); }}});
  }
}
