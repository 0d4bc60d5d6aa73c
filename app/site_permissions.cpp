// What a permission of a site is, for each of the three kinds.
#include "app/site_lists.h"
#include "model/storage_setting.h"
#include "store/setting_keys.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

template <const PermissionSetting::Keys& keys>
PermissionState ReadPermission(const SimpleString& domain) {
  return PermissionSetting(keys, domain).getState();
}

template <const PermissionSetting::Keys& keys>
void WritePermission(const SimpleString& domain, PermissionState state) {
  PermissionSetting(keys, domain).setState(state);
}

PermissionState ReadStorage(const SimpleString& domain) {
  return StorageSetting(SASM::kStorageLimit, domain).getPermissionState();
}

// Data that could not be deleted shows in the list as used.
void WriteStorage(const SimpleString& domain, PermissionState state) {
  (void)StorageSetting(SASM::kStorageLimit, domain)
      .setPermissionState(state)
      .commit();
}

PermissionState GlobalCameraAndMic() {
  SettingBase always(SASM::kDefaultCameraAlways,
                     SettingsManager::MasterDomain());
  return always.getBoolValue(SASM::kDefaultCameraAlways)
             ? PermissionSetting::kPermissionStateAlwaysDeny
             : PermissionSetting::kPermissionStateAlwaysAsk;
}

PermissionState GlobalStorage() {
  return StorageSetting(SASM::kDefaultStorageLimit,
                        SettingsManager::MasterDomain())
      .getPermissionState();
}

PermissionState GlobalPeerAssistedNetworking() {
  return PermissionSetting::kPermissionStateAlwaysAllow;
}

}  // namespace

const SitePermission kSitePermissions[3] = {
    {"cam_and_mic_by_site_dialog", "site_privacy_treeview", "site_privacy_list",
     "add_site_privacy_setting_button", "remove_site_privacy_setting_button",
     31006, 31007, 2, "site_privacy_permission_settings_combo",
     ReadPermission<PermissionSetting::kCameraAndMic>,
     WritePermission<PermissionSetting::kCameraAndMic>, GlobalCameraAndMic},
    {"storage_by_site_dialog", "site_storage_treeview", "site_storage_list",
     "add_site_storage_setting_button", "remove_site_storage_setting_button",
     21107, 21108, 4, "cellrenderer_storage_permission_settings_combo",
     ReadStorage, WriteStorage, GlobalStorage},
    {"p2p_by_site_dialog", "site_p2p_treeview", "site_p2p_list",
     "add_site_p2p_setting_button", "remove_site_p2p_setting_button", 41200,
     41201, 2, "cellrenderer_p2p_permission_settings_combo",
     ReadPermission<PermissionSetting::kPeerAssistedNetworking>,
     WritePermission<PermissionSetting::kPeerAssistedNetworking>,
     GlobalPeerAssistedNetworking},
};
