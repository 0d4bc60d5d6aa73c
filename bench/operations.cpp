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
extern "C" {
void* __libc_malloc(std::size_t size);                     // NOLINT
void* __libc_calloc(std::size_t nmemb, std::size_t size);  // NOLINT
void* __libc_realloc(void* ptr, std::size_t size);         // NOLINT

__attribute__((visibility("default"))) void* malloc(std::size_t size) {
  ++g_allocations;
  return __libc_malloc(size);
}
__attribute__((visibility("default"))) void* calloc(std::size_t nmemb,
                                                    std::size_t size) {
  ++g_allocations;
  return __libc_calloc(nmemb, size);
}
__attribute__((visibility("default"))) void* realloc(void* ptr,
                                                     std::size_t size) {
  ++g_allocations;
  return __libc_realloc(ptr, size);
}
}

namespace {

constexpr std::size_t kSites = 1000;

struct Operation {
  const char* name;
  std::size_t sites;
  void (*prepare)(SiteHome* home, std::size_t times);
  void (*run)(const SiteHome& home, std::size_t times);
};

GnomeTCCapplet* g_panel = nullptr;
std::string g_tree;

void NoPreparation(SiteHome*, std::size_t) {}

void StartStore(SiteHome*, std::size_t) { OpenFreshStore(); }

void ReadSites(const SiteHome& home, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    SettingBase::mSettingsManager->EnsureSettingsAreLoadedForDomain(
        home.Sites()[i].c_str());
  }
}

void LoadSite(SiteHome* home, std::size_t) {
  StartStore(nullptr, 0);
  ReadSites(*home, 1);
}

void ChangeSite(const SiteHome& home, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    PermissionSetting(kPermissions[kCamera], home.Sites()[0].c_str())
        .setState(kPermissionStateAlwaysAllow);
  }
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
void Refill(const SiteHome&, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) update_notebook_page(g_panel, page);
}

void MakeTree(SiteHome* home, std::size_t files) {
  g_tree = *home / "tree";
  for (std::size_t i = 0; i < files; ++i) {
    home->Write("tree/" + std::to_string(i), "");
  }
}

void RemoveMadeTree(const SiteHome&, std::size_t) {
  LinuxFileManager files;
  Check(files.RemoveFileAtPath(g_tree.c_str()), "remove");
}

void OpenStores(const SiteHome&, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    LinuxFileManager files;
    const SASM::SettingsManager manager(&files);
  }
}

constexpr Operation kOperations[] = {
    {"start", 0, NoPreparation, OpenStores},
    {"read", kSites, StartStore, ReadSites},
    {"change", 1, LoadSite, ChangeSite},
    {"refill", kSites, StartWindow, Refill<kPrivacyPage>},
    {"refill-with-sizes", kSites, StartWindow, Refill<kStoragePage>},
    {"remove", 1, MakeTree, RemoveMadeTree},
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
    operation.run(home, times);
    const std::size_t after = g_allocations;
    (void)getppid();
    std::printf("%zu\n", after - before);
  }
}
