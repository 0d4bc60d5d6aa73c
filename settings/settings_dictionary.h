// The settings of one domain by their keys.
#pragma once

#include "settings/hash_map.h"
#include "settings/setting_data_item.h"

namespace SASM {

using SettingsDictionary = HashMap<SimpleString, SettingDataItem, hashSS>;

// The value under a key, borrowed from the dictionary; null when there is
// none.
[[nodiscard]] inline SettingDataItem* FindSetting(
    const SimpleString& key, const SettingsDictionary& dictionary) {
  const auto found = dictionary.find(key);
  return found == dictionary.end() ? nullptr : &found->value;
}

}  // namespace SASM
