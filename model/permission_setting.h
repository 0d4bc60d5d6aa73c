// A permission of a site, kept as two booleans.
#pragma once

#include "model/permissions.h"
#include "model/setting_base.h"

// `always` says whether the decision is fixed or the user is asked each time.
// `allow` says what a fixed decision is. A missing boolean counts as false.
class PermissionSetting : public SettingBase {
 public:
  using _SettingsPermissionState = PermissionState;  // NOLINT
  using enum PermissionState;

  PermissionSetting(const char* always_key, const char* allow_key,
                    SASM::SimpleString domain);
  // For a permission that is kept as two booleans.
  PermissionSetting(const Permission& permission, SASM::SimpleString domain);

  [[nodiscard]] _SettingsPermissionState getState();
  // Writes `always`, then `allow`, each with a write of the file. Any state
  // other than Ask and Allow is written as Block.
  void setState(_SettingsPermissionState state);

 private:
  SASM::SimpleString always_key_;
  SASM::SimpleString allow_key_;
};
