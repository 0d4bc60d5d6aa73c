// Does one operation some number of times between two calls of getppid, so
// that strace can count its system calls (see bench/counts), and prints the
// number of its allocations.
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/panel_window.h"
#include "model/permission_setting.h"

namespace {

std::size_t g_allocations = 0;

}  // namespace

// In front of the C library's own.
#define COUNTED(name, parameters, arguments)                     \
  void* __libc_##name parameters; /* NOLINT */                   \
  __attribute__((visibility("default"))) void* name parameters { \
    ++g_allocations;                                             \
    return __libc_##name arguments;                              \
  }

extern "C" {
COUNTED(malloc, (std::size_t size), (size))
COUNTED(calloc, (std::size_t nmemb, std::size_t size), (nmemb, size))
COUNTED(realloc, (void* ptr, std::size_t size), (ptr, size))
}

namespace {

constexpr std::size_t kSites = 1000;

struct Operation {
  const char* name;
  std::size_t sites;
  void (*prepare)(SiteHome* home, std::size_t times);
  // The first time is the 0th.
  void (*run)(const SiteHome& home, std::size_t time);
};

GnomeTCCapplet* g_panel = nullptr;

void StartStore(SiteHome*, std::size_t) { OpenFreshStore(); }

void ReadSite(const SiteHome& home, std::size_t index) {
  SettingBase::mSettingsManager->EnsureSettingsAreLoadedForDomain(
      home.Sites()[index].c_str());
}

void LoadSite(SiteHome* home, std::size_t) {
  OpenFreshStore();
  ReadSite(*home, 0);
}

void ChangeSite(const SiteHome& home, std::size_t) {
  PermissionSetting(kPermissions[kCamera], home.Sites()[0].c_str())
      .setState(kPermissionStateAlwaysAllow);
}

void StartWindow(SiteHome*, std::size_t) {
  int argc = 0;
  char** argv = nullptr;
  g_panel = StartWithoutStore(&argc, &argv);
  gtk_widget_show(g_panel->window);
  OpenStore(g_panel);
  update_notebook_page(g_panel, kPrivacyPage);
  update_notebook_page(g_panel, kStoragePage);
}

template <int page>
void Refill(const SiteHome&, std::size_t) {
  update_notebook_page(g_panel, page);
}

void MakeTree(SiteHome* home, std::size_t files) {
  for (std::size_t i = 0; i < files; ++i) {
    home->Write("tree/" + std::to_string(i), "");
  }
}

// The first time removes all files.
void RemoveTreeOnce(const SiteHome& home, std::size_t time) {
  if (time > 0) return;
  const std::string tree = home / "tree";
  Check(LinuxFileManager().RemoveFileAtPath(tree.c_str()), "remove");
}

void OpenOtherStore(const SiteHome&, std::size_t) {
  LinuxFileManager files;
  const SASM::SettingsManager manager(&files);
}

constexpr Operation kOperations[] = {
    {"start", 0, [](SiteHome*, std::size_t) {}, OpenOtherStore},
    {"read", kSites, StartStore, ReadSite},
    {"change", 1, LoadSite, ChangeSite},
    {"refill", kSites, StartWindow, Refill<kPrivacyPage>},
    {"refill-with-sizes", kSites, StartWindow, Refill<kStoragePage>},
    {"remove", 1, MakeTree, RemoveTreeOnce},
};

}  // namespace

int main(int argc, char** argv) {
  Check(argc == 3, "Usage: bench_operations OPERATION TIMES");
  const std::size_t times = std::stoul(argv[2]);
  SiteHome home;
  for (const Operation& operation : kOperations) {
    if (std::strcmp(operation.name, argv[1]) != 0) continue;
    home.MakeSites(operation.sites);
    operation.prepare(&home, times);
    (void)getppid();
    const std::size_t before = g_allocations;
    for (std::size_t i = 0; i < times; ++i) operation.run(home, i);
    const std::size_t after = g_allocations;
    (void)getppid();
    std::printf("%zu\n", after - before);
  }
}
