#include "model/permission_setting.h"

#include <utility>

PermissionSetting::PermissionSetting(const char* always_key,
                                     const char* allow_key,
                                     SASM::SimpleString domain)
    : SettingBase("", std::move(domain)),
      always_key_(always_key),
      allow_key_(allow_key) {}

PermissionSetting::PermissionSetting(const Permission& permission,
                                     SASM::SimpleString domain)
    : PermissionSetting(permission.always_key, permission.allow_key,
                        std::move(domain)) {}

PermissionSetting::_SettingsPermissionState PermissionSetting::getState() {
  const bool always = getBoolValue(always_key_);
  return StateOf(always, always && getBoolValue(allow_key_));
}

void PermissionSetting::setState(_SettingsPermissionState state) {
  setBoolValue(AlwaysOf(state), always_key_);
  setBoolValue(AllowOf(state), allow_key_);
}
