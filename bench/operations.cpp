// Does one operation some number of times between two calls of getppid, so
// that strace can count its system calls (see bench/counts), and prints the
// number of its allocations.
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "app/list_contents.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/panel_window.h"
#include "bench/private_home.h"
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
  void (*prepare)(PrivateHome* home, std::size_t times);
  void (*run)(const PrivateHome& home, std::size_t times);
};

GnomeTCCapplet* g_panel = nullptr;
std::string g_tree;

void NoPreparation(PrivateHome*, std::size_t) {}

void StartStore(PrivateHome*, std::size_t) { OpenFreshStore(); }

void ReadSites(const PrivateHome& home, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    SettingBase::mSettingsManager->EnsureSettingsAreLoadedForDomain(
        home.Sites()[i].c_str());
  }
}

void LoadSite(PrivateHome* home, std::size_t) {
  StartStore(nullptr, 0);
  ReadSites(*home, 1);
}

void ChangeSite(const PrivateHome& home, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    PermissionSetting(kPermissions[kCamera], home.Sites()[0].c_str())
        .setState(kPermissionStateAlwaysAllow);
  }
}

void StartWindow(PrivateHome*, std::size_t) {
  int argc = 0;
  char** argv = nullptr;
  g_panel = StartWithoutStore(&argc, &argv);
  OpenStore(g_panel);
  fill_list(g_panel, kLists[kCameraList]);
  fill_list(g_panel, kLists[kStorageList]);
}

template <ListIndex index>
void Refill(const PrivateHome&, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) fill_list(g_panel, kLists[index]);
}

void MakeTree(PrivateHome* home, std::size_t files) {
  g_tree = *home / "tree";
  Check(mkdir(g_tree.c_str(), 0700) == 0, "mkdir");
  for (std::size_t i = 0; i < files; ++i) {
    WriteFile(g_tree + "/" + std::to_string(i), "");
  }
}

void RemoveMadeTree(const PrivateHome&, std::size_t) {
  LinuxFileManager files;
  Check(files.RemoveFileAtPath(g_tree.c_str()), "remove");
}

void OpenStores(const PrivateHome&, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i) {
    LinuxFileManager files;
    const SASM::SettingsManager manager(&files);
  }
}

constexpr Operation kOperations[] = {
    {"start", 0, NoPreparation, OpenStores},
    {"read", kSites, StartStore, ReadSites},
    {"change", 1, LoadSite, ChangeSite},
    {"refill", kSites, StartWindow, Refill<kCameraList>},
    {"refill-with-sizes", kSites, StartWindow, Refill<kStorageList>},
    {"remove", 1, MakeTree, RemoveMadeTree},
};

}  // namespace

int main(int argc, char** argv) {
  Check(argc == 3, "Usage: bench_operations OPERATION TIMES");
  const std::size_t times = std::stoul(argv[2]);
  PrivateHome home;
  for (const Operation& operation : kOperations) {
    if (std::strcmp(operation.name, argv[1]) != 0) continue;
    home.MakeSites(operation.sites, true);
    operation.prepare(&home, times);
    (void)getppid();
    const std::size_t before = g_allocations;
    operation.run(home, times);
    const std::size_t after = g_allocations;
    (void)getppid();
    std::printf("%zu\n", after - before);
  }
}
