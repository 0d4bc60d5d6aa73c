#include "store/default_settings.h"

#include <utility>

#include "store/setting_keys.h"

namespace SASM {
namespace {

constexpr auto kNumber = kSettingsDataTypeDouble;
constexpr auto kBool = kSettingsDataTypeBool;
constexpr auto kArray = kSettingsDataTypeArray;

constexpr DefaultSetting kMasterSettings[] = {
    {kDefaultCameraAlways, kBool, false, nullptr},
    {"crossdomainAlways", kBool, true, nullptr},
    {"crossdomainAllow", kBool, false, nullptr},
    {kTrustedPaths, kArray, 0, nullptr},
    {kDefaultStorageLimit, kNumber, kDefaultLimitKb, nullptr},
    {"allowThirdPartyLSOAccess", kBool, true, nullptr},
    {"secureCrossDomainCacheSize", kNumber, -1, nullptr},
    {kDisallowP2PUplink, kBool, false, nullptr},
    {"autoUpdateDisabled", kBool, false, nullptr},
    {"autoUpdateInterval", kNumber, 14, nullptr},
};

constexpr DefaultSetting kDomainSettings[] = {
    {kCameraAllow, kBool, false, nullptr},
    {kCameraAlways, kBool, false, kDefaultCameraAlways},
    {kStorageLimit, kNumber, kDefaultLimitKb, kDefaultStorageLimit},
    {kP2PAllow, kBool, false, nullptr},
    {kP2PAlways, kBool, false, nullptr},
};

}  // namespace

std::span<const DefaultSetting> DefaultMasterSettings() {
  return kMasterSettings;
}

std::span<const DefaultSetting> DefaultDomainSettings() {
  return kDomainSettings;
}

SettingDataItem MakeDefaultItem(const DefaultSetting& row,
                                const SettingDataItem* master_item) {
  SimpleString name(row.key);
  if (row.type == kArray) {
    return SettingDataItem(std::move(name), new SDIVector);
  }
  if (row.type == kBool) {
    return SettingDataItem(std::move(name),
                           BoolOr(master_item, row.value != 0));
  }
  return SettingDataItem(std::move(name), NumberOr(master_item, row.value));
}

void InsertMissingDefaults(std::span<const DefaultSetting> rows,
                           const SettingsDictionary& master,
                           SettingsDictionary* dictionary) {
  for (const DefaultSetting& row : rows) {
    if (FindSetting(row.key, *dictionary)) continue;
    const SettingDataItem* master_item =
        row.master_key ? FindSetting(row.master_key, master) : nullptr;
    dictionary->insert(row.key, MakeDefaultItem(row, master_item));
  }
}

}  // namespace SASM
