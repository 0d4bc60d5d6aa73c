// The three permissions as the UI shows them.
#pragma once

#include "model/permission_setting.h"

// In the order of the rows of the list store permission_settings.
struct PermissionChoice {
  PermissionSetting::_SettingsPermissionState state;
  // The word in a site's row, and the choice in a combo box.
  int word_id;
  const char* word_fallback;
  int choice_id;
  // A stock id.
  const char* icon;
};

inline constexpr PermissionChoice kPermissionChoices[] = {
    {PermissionSetting::kPermissionStateAlwaysDeny, 11100, "Block", 11100,
     "icon_corvane_always_deny"},
    {PermissionSetting::kPermissionStateAlwaysAsk, 11101, "Ask", 11103,
     "icon_corvane_always_ask"},
    {PermissionSetting::kPermissionStateAlwaysAllow, 11102, "Allow", 11102,
     "icon_corvane_always_allow"},
};
