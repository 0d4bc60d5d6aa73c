#include "cli/trusted_locations.h"

#include <memory>
#include <string_view>
#include <unordered_set>

#include "store/setting_keys.h"

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SettingsManager;

namespace {

using Names = std::vector<std::string>;

constexpr char kSubject[] = "trusted locations";

SettingDataItem ListOf(const Names& names) {
  auto list = std::make_unique<SDIVector>();
  for (const std::string& name : names) {
    const SettingDataItem element(name.c_str(), /*boolean=*/true);
    list->addElement(&element);
  }
  return {SASM::kTrustedPaths, list.release()};
}

// One line for each name of `names` that `others` lacks.
void AddLines(const Names& names, const Names& others, const char* what,
              Names* lines) {
  const std::unordered_set<std::string_view> known(others.begin(),
                                                   others.end());
  for (const std::string& name : names) {
    if (!known.contains(name)) lines->push_back(Line(name, what));
  }
}

}  // namespace

void AddLocations(const Names& paths, Names* locations) {
  std::unordered_set<std::string> known(locations->begin(), locations->end());
  for (const std::string& path : paths) {
    if (known.insert(path).second) locations->push_back(path);
  }
}

Change ChangeOfLocations(const Names& locations, const StoreView& store) {
  Change change = {kSubject, {}, {}};
  const Names former = store.TrustedLocations();
  if (locations == former) return change;
  AddLines(locations, former, "trusted", &change.lines);
  AddLines(former, locations, "no longer trusted", &change.lines);
  if (change.lines.empty()) change.lines = {Line(kSubject, "put in order")};
  change.apply = [locations](SettingsManager& manager) {
    SettingDataItem item = ListOf(locations);
    return manager.SetSetting(&item, SASM::kTrustedPaths,
                              SettingsManager::MasterDomain());
  };
  return change;
}
