// A permission of a site, kept as two booleans.
#pragma once

#include "model/setting_base.h"
#include "store/setting_keys.h"

// `always` says whether the decision is fixed or the user is asked each time;
// `allow` says what a fixed decision is. Missing ones count as false.
class PermissionSetting : public SettingBase {
 public:
  // The numbers are those of the permission choices in lists and combo boxes.
  enum _SettingsPermissionState : int {  // NOLINT(bugprone-reserved-identifier)
    kPermissionStateNone = 0,
    kPermissionStateAlwaysDeny = 1,
    kPermissionStateAlwaysAsk = 2,
    kPermissionStateAlwaysAllow = 3,
  };

  // The two keys of one permission.
  struct Keys {
    const char* always;
    const char* allow;
  };
  static constexpr Keys kCameraAndMic = {SASM::kCameraAlways,
                                         SASM::kCameraAllow};
  static constexpr Keys kPeerAssistedNetworking = {SASM::kP2PAlways,
                                                   SASM::kP2PAllow};

  PermissionSetting(const char* always_key, const char* allow_key,
                    SASM::SimpleString domain);
  PermissionSetting(const Keys& keys, SASM::SimpleString domain);

  [[nodiscard]] _SettingsPermissionState getState();
  // Writes `always`, then `allow`, each on its own. Any state but Ask and
  // Allow is written as Block.
  void setState(_SettingsPermissionState state);

  // What the two booleans mean.
  [[nodiscard]] static _SettingsPermissionState StateOf(bool always,
                                                        bool allow) {
    if (!always) return kPermissionStateAlwaysAsk;
    return allow ? kPermissionStateAlwaysAllow : kPermissionStateAlwaysDeny;
  }

  // What holds for a site: a switch that blocks all sites comes before what is
  // stored for one, which then need not be read.
  template <typename ReadStored>
  [[nodiscard]] static _SettingsPermissionState StateOfSite(
      bool all_are_blocked, ReadStored read_stored) {
    return all_are_blocked ? kPermissionStateAlwaysDeny : read_stored();
  }

  // The id of the text that says a site's state, which is not None.
  [[nodiscard]] static constexpr int TextOf(_SettingsPermissionState state) {
    return state == kPermissionStateAlwaysDeny  ? 11100
           : state == kPermissionStateAlwaysAsk ? 11101
                                                : 11102;
  }

 private:
  SASM::SimpleString always_key_;
  SASM::SimpleString allow_key_;
};
