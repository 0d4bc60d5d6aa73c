#include "model/permission_changes.h"

#include "model/storage_setting.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

bool CommitLimit(const char* key, const SimpleString& domain,
                 PermissionState state) {
  return StorageSetting(key, domain).setPermissionState(state).commit();
}

}  // namespace

bool SetSiteState(const Permission& permission, const SimpleString& site,
                  PermissionState state) {
  if (permission.limit_key) {
    return CommitLimit(permission.limit_key, site, state);
  }
  PermissionSetting(permission, site).setState(state);
  return true;
}

bool SetStateOfListedSites(const Permission& permission,
                           PermissionState state) {
  bool all_done = true;
  const SASM::SDIVector* sites = SettingBase::mSettingsManager->GetDomains();
  for (unsigned int i = 0; sites && i < sites->count; ++i) {
    all_done = SetSiteState(permission, sites->At(i)->name, state) && all_done;
  }
  return all_done;
}

bool SetGlobalState(const Permission& permission, PermissionState state) {
  const SimpleString& master = SettingsManager::MasterDomain();
  if (permission.limit_key) {
    return CommitLimit(permission.global_key, master, state);
  }
  SettingBase(permission.global_key, master)
      .setBoolValue(SwitchOf(state), permission.global_key);
  return permission.switch_overrides_sites ||
         SetStateOfListedSites(permission, StateOf(SwitchOf(state), false));
}
