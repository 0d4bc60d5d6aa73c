#include "tests/support/panel_home.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <sstream>

#include "platform/linux_file_manager.h"
#include "store/setting_keys.h"
#include "store/settings_file.h"
#include "store/settings_manager.h"

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SettingsManager;
namespace fs = std::filesystem;

namespace {

// Adds names to a list of the master settings, in one write.
void AppendToMasterList(SettingsManager* store, const char* key,
                        const std::vector<std::string>& names) {
  const SASM::SimpleString& master = SettingsManager::MasterDomain();
  SDIVector* stored = SASM::ArrayOrNull(store->GetSetting(key, master));
  const std::unique_ptr<SDIVector> list(stored->NewCopy());
  const bool yes = true;
  for (const std::string& name : names) {
    const SettingDataItem item(name.c_str(), SASM::kSettingsDataTypeBool, &yes);
    list->addElement(&item);
  }
  SettingDataItem item(key, SASM::kSettingsDataTypeArray, list.get());
  EXPECT_TRUE(store->SetSetting(&item, key, master));
}

std::string AsText(const SettingDataItem& item) {
  if (item.type == SASM::kSettingsDataTypeBool) {
    return item.value.boolean ? "true" : "false";
  }
  if (item.type == SASM::kSettingsDataTypeDouble) {
    std::ostringstream number;
    number << item.value.number;
    return number.str();
  }
  std::string names;
  const SDIVector* list = SASM::ArrayOrNull(&item);
  for (unsigned int i = 0; list && i < list->count; ++i) {
    names += (i == 0 ? "" : " ") + std::string(list->At(i)->name.c_str());
  }
  return "[" + names + "]";
}

}  // namespace

void PanelHome::AddSites(const Names& sites) const {
  LinuxFileManager file_manager;
  SettingsManager store(&file_manager);
  for (const std::string& site : sites) {
    EXPECT_TRUE(store.WriteOrUpdateSettingsForDomain(site.c_str()));
  }
  AppendToMasterList(&store, SASM::kDomains, sites);
}

std::string PanelHome::AddData(const std::string& site,
                               std::size_t bytes) const {
  const std::string file =
      std::string(kSharedObjects) + "/QK5SFBDP/" + site + "/game.sol";
  Write(file, std::string(bytes, 'x'));
  return file;
}

void PanelHome::AddLocations(const Names& locations) const {
  LinuxFileManager file_manager;
  SettingsManager store(&file_manager);
  AppendToMasterList(&store, SASM::kTrustedPaths, locations);
}

std::string PanelHome::Stored(const std::string& site, const char* key) const {
  const std::string file =
      site == kMaster ? MasterFile() : SettingsFileOf(site);
  SASM::SimpleString* name = nullptr;
  const std::unique_ptr<SASM::SettingsDictionary> settings(
      SASM::ReadSettingsFile((*this / file).c_str(), &name));
  delete name;
  if (!settings) return "no settings";
  const auto entry = settings->find(key);
  return entry == settings->end() ? "" : AsText(entry->value);
}

std::map<std::string, std::string> PanelHome::Disk() const {
  std::map<std::string, std::string> disk;
  for (const std::string& name : List()) {
    const fs::path path = *this / name;
    if (!fs::is_regular_file(path)) continue;
    const auto written = fs::last_write_time(path).time_since_epoch().count();
    disk[name] = Read(name) + " " + std::to_string(written);
  }
  return disk;
}
