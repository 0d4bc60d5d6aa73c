// The three permissions as the UI shows them.
#pragma once

#include "model/permission_setting.h"

// In the order of the rows of the list store permission_settings.
struct PermissionChoice {
  PermissionSetting::_SettingsPermissionState state;
  // In a site's row, where its own text is missing.
  const char* fallback;
  // The text of the choice in a combo box.
  int choice_id;
  // A stock id.
  const char* icon;
};

inline constexpr PermissionChoice kPermissionChoices[] = {
    {PermissionSetting::kPermissionStateAlwaysDeny, "Block", 11100,
     "icon_corvane_always_deny"},
    {PermissionSetting::kPermissionStateAlwaysAsk, "Ask", 11103,
     "icon_corvane_always_ask"},
    {PermissionSetting::kPermissionStateAlwaysAllow, "Allow", 11102,
     "icon_corvane_always_allow"},
};
