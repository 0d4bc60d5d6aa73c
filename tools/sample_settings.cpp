// Fills the settings in the home directory with some sites and trusted
// locations, for pictures that show more than empty lists.
#include <glib.h>

#include <cstdlib>
#include <string>

#include "app/site_lists.h"
#include "platform/linux_file_manager.h"
#include "store/setting_keys.h"

namespace {

constexpr auto kBlock = PermissionSetting::kPermissionStateAlwaysDeny;
constexpr auto kAsk = PermissionSetting::kPermissionStateAlwaysAsk;
constexpr auto kAllow = PermissionSetting::kPermissionStateAlwaysAllow;

struct SampleSite {
  const char* domain;
  std::size_t stored_bytes;
  // By SitePermissionMode.
  PermissionState permissions[3];
};

constexpr SampleSite kSites[] = {
    {"games.example.com", 2480000, {kAsk, kAllow, kAllow}},
    {"lectures.university.example", 61000, {kAllow, kAllow, kAsk}},
    {"meet.example.org", 0, {kAllow, kAsk, kAllow}},
    {"a-very-long-name-of-a-web-site.somewhere.example.net",
     900,
     {kBlock, kAsk, kBlock}},
    {"advertisements.example", 0, {kBlock, kBlock, kBlock}},
};

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
  for (int mode = 0; mode < 3; ++mode) {
    kSitePermissions[mode].write(site.domain, site.permissions[mode]);
  }
  return true;
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
