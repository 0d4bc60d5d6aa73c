#include "cli/store_view.h"

#include <utility>

#include "model/storage_setting.h"
#include "store/default_settings.h"
#include "store/setting_keys.h"
#include "store/stored_data.h"

using SASM::FindSetting;
using SASM::SDIVector;
using SASM::SettingsDictionary;
using SASM::SimpleString;

namespace {

bool ReadBool(const char* key, const SettingsDictionary& dictionary) {
  return SASM::BoolOr(FindSetting(key, dictionary), false);
}

double ReadLimit(const char* key, const SettingsDictionary& dictionary) {
  return SASM::NumberOr(FindSetting(key, dictionary), SettingBase::kNoNumber);
}

PermissionState ReadState(const PermissionSetting::Keys& keys,
                          const SettingsDictionary& dictionary) {
  return PermissionSetting::StateOf(ReadBool(keys.always, dictionary),
                                    ReadBool(keys.allow, dictionary));
}

// Of a switch that blocks all sites.
PermissionState SwitchState(bool blocks) {
  return PermissionSetting::StateOf(blocks, false);
}

}  // namespace

StoreView::StoreView(const SASM::FileManager& files)
    : files_(files), layout_(&files) {
  if (layout_.IsOnDisk()) {
    SettingsOnDisk master =
        ReadSettings(layout_.SettingsFileOf(SASM::MasterDomainName()));
    is_sound_ = master.is_sound || master.is_missing;
    master_ = std::move(master.dictionary);
  }
  if (!master_) master_ = std::make_unique<SettingsDictionary>();
  // A default for which memory is short reads as a missing setting.
  (void)SASM::InsertMissingDefaults(SASM::DefaultMasterSettings(), *master_,
                                    master_.get());
}

GlobalSettings StoreView::Global() const {
  GlobalSettings global;
  global.storage_limit_kb = ReadLimit(SASM::kDefaultStorageLimit, *master_);
  global.states.Set(Permission::kStorage, StorageSetting::kbToPermissionSetting(
                                              global.storage_limit_kb));
  global.states.Set(
      Permission::kCamera,
      SwitchState(ReadBool(SASM::kDefaultCameraAlways, *master_)));
  global.states.Set(Permission::kNetwork, SwitchState(BlocksNetwork()));
  return global;
}

bool StoreView::BlocksNetwork() const {
  return ReadBool(SASM::kDisallowP2PUplink, *master_);
}

const SDIVector* StoreView::TrustedLocations() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kTrustedPaths, *master_));
}

const SDIVector* StoreView::ListedSites() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kDomains, *master_));
}

bool StoreView::IsKnown(const SimpleString& site) const {
  return SASM::HasSettingsFile(site, layout_, files_);
}

SiteSettings StoreView::Read(const SimpleString& name) const {
  SettingsOnDisk on_disk = ReadSettings(layout_.SettingsFileOf(name));
  const SettingsDictionary nothing;
  const SettingsDictionary& stored =
      on_disk.dictionary ? *on_disk.dictionary : nothing;
  SiteSettings site;
  site.is_sound = on_disk.is_sound;
  site.storage_limit_kb = ReadLimit(SASM::kStorageLimit, stored);
  site.storage_used_bytes = SASM::LocalStorageSize(name, layout_, files_);
  site.states.Set(Permission::kStorage,
                  StorageSetting::kbToPermissionSetting(site.storage_limit_kb));
  site.states.Set(Permission::kCamera,
                  ReadState(PermissionSetting::kCameraAndMic, stored));
  site.states.Set(Permission::kNetwork,
                  PermissionSetting::StateOfSite(BlocksNetwork(), [&] {
                    return ReadState(PermissionSetting::kPeerAssistedNetworking,
                                     stored);
                  }));
  return site;
}
