#include "cli/store_view.h"

#include <utility>

#include "store/default_settings.h"
#include "store/setting_keys.h"
#include "store/stored_data.h"

using SASM::FindSetting;
using SASM::SDIVector;
using SASM::SettingsDictionary;
using SASM::SimpleString;

StoreView::StoreView(const SASM::FileManager& files)
    : files_(files), layout_(&files) {
  if (layout_.IsOnDisk()) {
    SettingsOnDisk master =
        ReadSettings(layout_.SettingsFileOf(SASM::MasterDomainName()));
    is_intact_ = master.is_intact || master.is_missing;
    master_ = std::move(master.dictionary);
  }
  if (!master_) master_ = std::make_unique<SettingsDictionary>();
  SASM::InsertMissingDefaults(SASM::DefaultMasterSettings(), *master_,
                              master_.get());
}

PermissionSettings StoreView::Global() const {
  PermissionSettings global;
  for (const Permission& permission : kPermissions) {
    global.states[permission.kind] = GlobalState(permission, master_.get());
  }
  global.storage_limit_kb = GlobalLimitKb(master_.get());
  return global;
}

const SDIVector* StoreView::TrustedLocations() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kTrustedPaths, *master_));
}

const SDIVector* StoreView::ListedSites() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kDomains, *master_));
}

bool StoreView::HasSettings(const SimpleString& site) const {
  return SASM::HasSettingsFile(site, layout_);
}

SiteSettings StoreView::Read(const SimpleString& site) const {
  const SettingsOnDisk on_disk = ReadSettings(layout_.SettingsFileOf(site));
  SiteSettings settings;
  settings.name = site.c_str();
  settings.is_intact = on_disk.is_intact;
  for (const Permission& permission : kPermissions) {
    settings.permissions.states[permission.kind] =
        EffectiveState(permission, master_.get(), on_disk.dictionary.get());
  }
  settings.permissions.storage_limit_kb =
      StoredLimitKb(on_disk.dictionary.get());
  settings.storage_used_bytes = SASM::LocalStorageSize(site, layout_, files_);
  return settings;
}
