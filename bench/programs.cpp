// The two programs from the start of the process to the first shown window, or
// to the end.
#include <X11/Xlib.h>
#include <signal.h>
#include <sys/wait.h>

#include <cstring>
#include <filesystem>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "bench/panel_window.h"

namespace {

constexpr std::size_t kSizes[] = {0, 1000, 10000, 100000};
// With HOME and COUNT behind it, makes this program the floor of a start.
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

void RunToShownWindow(WindowWatch* watch,
                      const std::vector<std::string>& arguments) {
  const pid_t child = StartProgram(arguments);
  watch->WaitForShownWindow();
  kill(child, SIGKILL);
  Check(waitpid(child, nullptr, 0) == child, "waitpid");
  watch->Forget();
}

void ReadAll(const std::string& master,
             const std::vector<SiteHome::Paths>& sites) {
  std::vector<char> buffer(std::filesystem::file_size(master));
  ReadFile(master, &buffer);
  ReadSiteFiles(sites);
}

// A start of the toolkit that reads the same files, measures the same
// directories and fills the same list, of sites that the process which started
// this one has made.
void ShowWindow(const std::string& home, std::size_t count) {
  int argc = 0;
  char** argv = nullptr;
  GnomeTCCapplet* panel = StartWithoutStore(&argc, &argv);
  const SiteHome::Names sites = SiteHome::NamesOf(count);
  const auto paths = SiteHome::PathsOf(home, sites);
  ReadAll(home + "/" + SiteHome::MasterFile(), paths);
  FillBare(FindSiteList(panel, kStorageList), sites, paths);
  gtk_widget_show(panel->window);
  gtk_main();
}

void MeasureWindow(const std::string& panel, const std::string& self,
                   const SiteHome& home) {
  static WindowWatch watch;
  const std::string count = std::to_string(home.Sites().size());
  Measure({"start to first shown window", home.Sites().size()},
          {{kPanel, [&] { RunToShownWindow(&watch, {panel}); }},
           {kFloor, [&] {
              RunToShownWindow(&watch, {self, kAsFloor, home.Path(), count});
            }}});
}

void MeasureCommand(const char* subject,
                    const std::vector<std::string>& command,
                    const SiteHome& home) {
  Measure({subject, home.Sites().size()},
          {{kPanel, [&] { RunProgram(command); }},
           {kFloor, [&] {
              RunProgram({"true"});
              ReadAll(home.MasterPath(), home.SitePaths());
              for (const SiteHome::Paths& site : home.SitePaths()) {
                (void)SizeOfTree(site.storage);
              }
            }}});
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 4 && std::strcmp(argv[1], kAsFloor) == 0) {
    ShowWindow(argv[2], std::stoul(argv[3]));
    return EXIT_SUCCESS;
  }
  Check(argc == 3, "Usage: bench_programs PANEL SETTINGS");
  SiteHome home;
  for (const std::size_t size : kSizes) {
    home.MakeSites(size);
    MeasureWindow(argv[1], argv[0], home);
    MeasureCommand("settings shown", {argv[2], "show"}, home);
    MeasureCommand("settings shown as JSON", {argv[2], "show", "--json"}, home);
  }
}
