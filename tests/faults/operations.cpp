#include "tests/faults/operations.h"

#include <algorithm>

#include "model/storage_setting.h"
#include "platform/drm_license_manager.h"
#include "store/default_settings.h"

using SASM::SettingsManager;
using Home = TemporaryHome;

namespace {

const std::vector<std::string> kBothSites = {"a.example", "b.example"};
const std::string kMasterFile = Home::MasterFile();
const std::string kStored = std::string(Home::kSharedObjects) + "/X7/";

const SASM::SimpleString& Master() { return SettingsManager::MasterDomain(); }

bool Start(Panel* panel) {
  panel->Start();
  return true;
}

bool ChangeSetting(Panel* panel) {
  const double limit = 1024;
  SASM::SettingDataItem item("klimit", SASM::kSettingsDataTypeDouble, &limit);
  return panel->manager->SetSetting(&item, "klimit", "a.example");
}

bool AddSite(Panel* panel) {
  return panel->manager->AddDomainWithDefaultSettings("c.example");
}

bool RemoveSite(Panel* panel) {
  return panel->manager->RemoveDomainInformation("a.example", true, true);
}

bool BlockStorageEverywhere(Panel*) {
  StorageSetting limit("defaultklimit", Master());
  return limit
      .setPermissionState(StorageSetting::State::kPermissionStateAlwaysDeny)
      .commit();
}

bool DeleteAll(Panel* panel) {
  bool done = panel->manager->RemoveAllSettingsAndOrLocalStorage(true, true);
  done = panel->manager->RemoveAssetCache() && done;
  return SASM::DRMLicenseManager(&panel->files).Reset() && done;
}

// The dictionary of the global settings is complete, whatever the disk holds.
std::string CheckStart(Panel& panel, const Outcome& outcome) {
  if (outcome.memory_failed) return {};
  for (const auto& row : SASM::DefaultMasterSettings()) {
    if (!panel.manager->HasSetting(row.key, Master())) return row.key;
  }
  return panel.manager->GetDomains() ? "" : "no list of sites";
}

std::string CheckChange(Panel& panel, const Outcome& outcome) {
  if (outcome.memory_failed && !outcome.result) return {};
  return panel.Number("klimit", "a.example") == 1024 ? "" : "not in memory";
}

std::string CheckAdded(Panel& panel, const Outcome& outcome) {
  if (outcome.memory_failed) return {};
  // A site is listed as soon as its own file is written.
  const bool is_listed = std::ranges::count(panel.Sites(), "c.example") > 0;
  const bool has_file =
      outcome.after.contains(Home::SettingsFileOf("c.example"));
  if (is_listed && !has_file) return "listed without a file";
  return outcome.result && !is_listed ? "added, but not listed" : "";
}

std::string CheckRemoved(Panel& panel, const Outcome& outcome) {
  const bool is_listed = std::ranges::count(panel.Sites(), "a.example") > 0;
  const std::string file = Home::SettingsFileOf("a.example");
  if (outcome.result) return is_listed ? "removed, but listed" : "";
  const bool has_file = outcome.after.contains(file);
  const bool has_storage =
      outcome.after.contains(kStored + "a.example/one.sol");
  return is_listed && has_storage && !has_file
             ? "the settings went before the storage"
             : "";
}

std::string CheckBlocked(Panel& panel, const Outcome& outcome) {
  if (outcome.memory_failed) return {};
  if (panel.Sites() != kBothSites) return "the list has changed";
  for (const auto& site : kBothSites) {
    if (panel.Number("klimit", site.c_str()) != -1)
      return "not blocked: " + site;
  }
  const bool is_blocked = panel.Number("defaultklimit", Master().c_str()) == -1;
  return is_blocked ? "" : "not blocked for others";
}

std::string CheckDeleted(Panel& panel, const Outcome& outcome) {
  if (outcome.memory_failed) return {};
  if (!panel.Sites().empty()) return "sites are listed";
  const bool is_kept = panel.Number("defaultklimit", Master().c_str()) == 10;
  return is_kept ? "" : "a global setting is lost";
}

const Operation kOperations[] = {
    {"first start",
     false,
     true,
     Start,
     {".orbelline/Corvane_Player/tessary.example/"},
     true,
     CheckStart},
    {"start", true, true, Start, {kMasterFile}, true, CheckStart},
    {"change a setting",
     true,
     false,
     ChangeSetting,
     {Home::SettingsFileOf("a.example")},
     true,
     CheckChange},
    {"add a site",
     true,
     false,
     AddSite,
     {kMasterFile, std::string(Home::kSettings) + "/#c.example/"},
     true,
     CheckAdded},
    {"remove a site",
     true,
     false,
     RemoveSite,
     {kMasterFile, std::string(Home::kSettings) + "/#a.example/",
      kStored + "a.example/"},
     true,
     CheckRemoved},
    {"block storage for all sites",
     true,
     false,
     BlockStorageEverywhere,
     {kMasterFile, Home::SettingsFileOf("a.example"),
      Home::SettingsFileOf("b.example"), kStored + "a.example/",
      kStored + "b.example/"},
     true,
     CheckBlocked},
    {"delete all",
     true,
     false,
     DeleteAll,
     {std::string(Home::kSettings) + "/", kStored,
      std::string(Home::kAssetCache) + "/", std::string(Home::kLicences) + "/"},
     false,
     CheckDeleted},
};

}  // namespace

std::span<const Operation> AllOperations() { return kOperations; }
