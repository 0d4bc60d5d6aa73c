// What a settings file holds before anybody has chosen anything.
#pragma once

#include <span>

#include "settings/settings_dictionary.h"

namespace SASM {

// A default as the tables hold it.
struct DefaultSetting {
  const char* key;
  _SettingsDataType type;
  // 0 or 1 for a boolean; unused for an array, which starts empty.
  double value;
  // The master key whose value, where it has this type, comes first; or null.
  const char* master_key;
};

// The storage limit of all sites, and of a site that is allowed to store data.
inline constexpr double kDefaultLimitKb = 100;

// In the order in which missing keys are inserted.
[[nodiscard]] std::span<const DefaultSetting> DefaultMasterSettings();
[[nodiscard]] std::span<const DefaultSetting> DefaultDomainSettings();

// A new value for the row. `master_item`, what is stored under the row's
// master key, may be null.
[[nodiscard]] SettingDataItem MakeDefaultItem(
    const DefaultSetting& row, const SettingDataItem* master_item);

// Inserts the rows whose keys the dictionary lacks. `master` holds the master
// settings; it may be the dictionary itself.
void InsertMissingDefaults(std::span<const DefaultSetting> rows,
                           const SettingsDictionary& master,
                           SettingsDictionary* dictionary);

}  // namespace SASM
