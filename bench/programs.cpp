// The two programs from the start of the process to the first shown window, or
// to the end.
#include <X11/Xlib.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "bench/panel_window.h"

namespace {

constexpr std::size_t kSizes[] = {0, 1000, 10000, 100000};
// Arguments with which this program stands in for one of the two.
constexpr char kWindowFloor[] = "--window-floor";
constexpr char kReadFloor[] = "--read-floor";

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

void RunToShownWindow(WindowWatch* watch, std::vector<std::string> arguments) {
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  pid_t child = 0;
  Check(
      posix_spawn(&child, argv[0], nullptr, nullptr, argv.data(), environ) == 0,
      argv[0]);
  watch->WaitForShownWindow();
  kill(child, SIGKILL);
  Check(waitpid(child, nullptr, 0) == child, "waitpid");
  watch->Forget();
}

// What was made in the home directory by the process that started this one.
struct MadeSites {
  SiteHome::Names names;
  std::vector<SiteHome::Paths> paths;
};

MadeSites ReadAll(const std::string& home, std::size_t count) {
  MadeSites sites = {SiteHome::NamesOf(count), {}};
  std::vector<char> buffer(16 << 20);
  ReadFile((home + "/" + SiteHome::MasterFile()).c_str(), &buffer);
  for (const std::string& site : sites.names) {
    sites.paths.push_back(SiteHome::PathsOf(home, site));
    ReadFile(sites.paths.back().settings_file.c_str(), &buffer);
  }
  return sites;
}

// A start of the toolkit that reads the same files, measures the same
// directories and fills the same list.
void ShowWindow(const std::string& home, std::size_t count) {
  int argc = 0;
  char** argv = nullptr;
  GnomeTCCapplet* panel = StartWithoutStore(&argc, &argv);
  const MadeSites sites = ReadAll(home, count);
  FillBare(FindSiteList(panel, kStorageList), sites.names, sites.paths);
  gtk_widget_show(panel->window);
  gtk_main();
}

void MeasureWindow(const std::string& panel, const std::string& self,
                   const SiteHome& home) {
  static WindowWatch watch;
  const std::string count = std::to_string(home.Sites().size());
  Measure(
      {"start to first shown window", home.Sites().size()},
      {{kPanel, [&] { RunToShownWindow(&watch, {panel}); }},
       {kFloor, [&] {
          RunToShownWindow(&watch, {self, kWindowFloor, home.Path(), count});
        }}});
}

void MeasureCommand(const std::vector<std::string>& command,
                    const std::string& self, const SiteHome& home) {
  const std::string count = std::to_string(home.Sites().size());
  Measure({command.back(), home.Sites().size()},
          {{kPanel, [&] { RunProgram(command); }},
           {kFloor, [&] {
              RunProgram({self, kReadFloor, home.Path(), count});
            }}});
}

void StandIn(const std::string& floor, const std::string& home,
             std::size_t count) {
  if (floor == kWindowFloor) return ShowWindow(home, count);
  std::size_t bytes = 0;
  for (const SiteHome::Paths& site : ReadAll(home, count).paths) {
    bytes += SizeOfTree(site.storage);
  }
  Check(count == 0 || bytes > 0, "sizes");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4) {
    StandIn(argv[1], argv[2], std::stoul(argv[3]));
    return EXIT_SUCCESS;
  }
  Check(argc == 3, "Usage: bench_programs PANEL SETTINGS");
  SiteHome home;
  for (const std::size_t size : kSizes) {
    home.MakeSites(size);
    MeasureWindow(argv[1], argv[0], home);
    MeasureCommand({argv[2], "show"}, argv[0], home);
    MeasureCommand({argv[2], "show", "--json"}, argv[0], home);
  }
}
