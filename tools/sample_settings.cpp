// Fills the settings in the home directory with some sites and trusted
// locations, for pictures that show more than empty lists.
#include <glib.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "model/permission_changes.h"
#include "model/setting_base.h"
#include "platform/linux_file_manager.h"
#include "store/setting_keys.h"

namespace {

constexpr auto kBlock = kPermissionStateAlwaysDeny;
constexpr auto kAsk = kPermissionStateAlwaysAsk;
constexpr auto kAllow = kPermissionStateAlwaysAllow;

struct SampleSite {
  const char* domain;
  std::size_t stored_bytes;
  // By PermissionKind.
  PermissionState states[kPermissionCount];
};

constexpr SampleSite kSites[] = {
    {"games.example.com", 2480000, {kAllow, kAsk, kAllow}},
    {"lectures.university.example", 61000, {kAllow, kAllow, kAsk}},
    {"meet.example.org", 0, {kAsk, kAllow, kAllow}},
    {"a-very-long-name-of-a-web-site.somewhere.example.net",
     900,
     {kAsk, kBlock, kBlock}},
    {"advertisements.example", 0, {kBlock, kBlock, kBlock}},
};

static_assert(std::ranges::all_of(kSites, [](const SampleSite& site) {
  return std::ranges::count(site.states, kPermissionStateNone) == 0;
}));

constexpr const char* kTrustedLocations[] = {
    "/home/user/Projects/Planets",
    "/home/user/Lectures/2026/Introduction to Astronomy/Week 1",
};

// The plug-in keeps everything in one directory of a name made by chance.
bool MakeLocalStorage(SASM::FileManager* file_manager) {
  const SASM::SimpleString root =
      SASM::StoreLayout(file_manager).LocalStorageRoot();
  return file_manager->CreateDirectoryAtPath(root, "8RQK2MPD");
}

bool StoreData(SASM::FileManager* file_manager, const SampleSite& site) {
  const SASM::StoreLayout layout(file_manager);
  if (!file_manager->CreateDirectoryAtPath(layout.LocalStorageDirectory(),
                                           site.domain)) {
    return false;
  }
  const std::string file =
      std::string(layout.LocalStorageOf(site.domain).c_str()) + "/data";
  const std::string data(site.stored_bytes, ' ');
  return g_file_set_contents(file.c_str(), data.c_str(),
                             static_cast<gssize>(data.size()), nullptr);
}

bool AddSite(const SampleSite& site) {
  if (!SettingBase::mSettingsManager->AddDomainWithDefaultSettings(
          site.domain)) {
    return false;
  }
  return std::ranges::all_of(kPermissions, [&](const Permission& permission) {
    return SetSiteState(permission, site.domain, site.states[permission.kind]);
  });
}

void AddTrustedLocations() {
  SettingBase trusted_paths(SASM::kTrustedPaths,
                            SASM::SettingsManager::MasterDomain());
  SASM::SDIVector* locations = trusted_paths.getVectorValue();
  for (const char* path : kTrustedLocations) {
    const SASM::SettingDataItem location(path, true);
    locations->addElement(&location);
  }
  trusted_paths.setVectorValue(locations);
}

}  // namespace

int main() {
  LinuxFileManager file_manager;
  if (!MakeLocalStorage(&file_manager)) return EXIT_FAILURE;
  AddTrustedLocations();
  for (const SampleSite& site : kSites) {
    if (!AddSite(site)) return EXIT_FAILURE;
    if (site.stored_bytes > 0 && !StoreData(&file_manager, site)) {
      return EXIT_FAILURE;
    }
  }
  return EXIT_SUCCESS;
}
