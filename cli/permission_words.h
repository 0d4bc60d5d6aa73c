// The permissions of a site, in words.
#pragma once

#include <array>

#include "model/permission_setting.h"

using PermissionState = PermissionSetting::_SettingsPermissionState;

enum class Permission { kStorage, kCamera, kNetwork };

struct PermissionWords {
  Permission permission;
  // On the command line and in JSON.
  const char* word;
  // Ids of texts: of the global setting, and of a site's.
  int global_title;
  int site_title;
};

inline constexpr std::array<PermissionWords, 3> kPermissions = {{
    {Permission::kStorage, "storage", 21001, 61003},
    {Permission::kCamera, "camera", 31001, 61001},
    {Permission::kNetwork, "network", 41001, 61002},
}};

struct StateWords {
  PermissionState state;
  const char* word;
};

inline constexpr std::array<StateWords, 3> kStates = {{
    {PermissionSetting::kPermissionStateAlwaysDeny, "block"},
    {PermissionSetting::kPermissionStateAlwaysAsk, "ask"},
    {PermissionSetting::kPermissionStateAlwaysAllow, "allow"},
}};

// The words of a state other than kPermissionStateNone.
constexpr const StateWords& WordsOf(PermissionState state) {
  return kStates[static_cast<std::size_t>(state) - 1];
}
static_assert(WordsOf(kStates[0].state).state == kStates[0].state &&
              WordsOf(kStates[2].state).state == kStates[2].state);

// A state for each of kPermissions.
class PermissionStates {
 public:
  [[nodiscard]] PermissionState Of(Permission permission) const {
    return states_[static_cast<std::size_t>(permission)];
  }
  void Set(Permission permission, PermissionState state) {
    states_[static_cast<std::size_t>(permission)] = state;
  }

 private:
  std::array<PermissionState, kPermissions.size()> states_ = {};
};
