// What a settings file holds before anybody has chosen anything.
#pragma once

#include <span>

#include "settings/setting_data_item.h"

namespace SASM {

// A default as the tables hold it.
struct DefaultSetting {
  const char* key;
  _SettingsDataType type;
  // Of a boolean 0 or 1; of an array, which starts empty, nothing.
  double value;
  // The master key whose value, where it has this type, comes first; or null.
  const char* master_key;
};

// In the order in which missing keys are inserted.
[[nodiscard]] std::span<const DefaultSetting> DefaultMasterSettings();
[[nodiscard]] std::span<const DefaultSetting> DefaultDomainSettings();

// A new value for the row. `master_item`, what is stored under the row's
// master key, may be null.
[[nodiscard]] SettingDataItem MakeDefaultItem(
    const DefaultSetting& row, const SettingDataItem* master_item);

}  // namespace SASM
