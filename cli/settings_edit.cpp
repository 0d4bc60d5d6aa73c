#include "cli/settings_edit.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>
#include <utility>

#include "cli/plain_text.h"
#include "store/default_settings.h"
#include "strings/printable_text.h"

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SettingsDictionary;
using SASM::SimpleString;

namespace {

constexpr char kUnset[] = "unset";
constexpr char kArrow[] = " → ";

std::unique_ptr<SettingsDictionary> Copy(const SettingsDictionary* dictionary) {
  auto copy = std::make_unique<SettingsDictionary>();
  if (!dictionary) return copy;
  for (const auto& entry : *dictionary) copy->insert(entry.key, entry.value);
  return copy;
}

bool AreEqual(double a, double b) {
  return (std::isnan(a) && std::isnan(b)) ||
         std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool AreEqual(const SDIVector& a, const SDIVector& b) {
  if (a.count != b.count) return false;
  for (unsigned int i = 0; i < a.count; ++i) {
    if (!(a.At(i)->name == b.At(i)->name)) return false;
    if (!::AreEqual(*a.At(i), *b.At(i))) return false;
  }
  return true;
}

std::string TextOrUnset(const SettingDataItem* item) {
  constexpr std::size_t kLongest = 60;
  return item ? ValueText(*item, kLongest) : kUnset;
}

// A word that the command line takes.
std::string LimitWord(double limit_kb) {
  for (const PermissionChoice& choice : kPermissionChoices) {
    if (choice.limit_kb == limit_kb) return choice.word;
  }
  if (limit_kb == kUnlimited) return kUnlimitedWord;
  return limit_kb > 0 ? Decimal(limit_kb)
                      : ChoiceOrBlock(StateOfLimit(limit_kb)).word;
}

}  // namespace

bool AreEqual(const SettingDataItem& a, const SettingDataItem& b) {
  if (a.type != b.type) return false;
  switch (a.type) {
    case SASM::kSettingsDataTypeDouble:
      return AreEqual(a.value.number, b.value.number);
    case SASM::kSettingsDataTypeBool:
      return a.value.boolean == b.value.boolean;
    case SASM::kSettingsDataTypeString:
      return *a.value.string == *b.value.string;
    case SASM::kSettingsDataTypeArray:
      return AreEqual(*a.value.array, *b.value.array);
  }
  return true;
}

std::string SubjectOf(const SimpleString& domain) {
  return domain == SASM::MasterDomainName() ? "all sites" : domain.c_str();
}

struct SettingsEdit::KeyChange {
  SimpleString key;
  std::optional<SettingDataItem> value;
};

SettingsEdit::SettingsEdit(SimpleString domain,
                           const SettingsDictionary* before)
    : domain_(std::move(domain)),
      is_master_(domain_ == SASM::MasterDomainName()),
      before_(Copy(before)),
      after_(Copy(before)) {}

void SettingsEdit::InsertDefaults(const SettingsDictionary& master) {
  const auto rows = is_master_ ? SASM::DefaultMasterSettings()
                               : SASM::DefaultDomainSettings();
  SASM::InsertMissingDefaults(rows, master, before_.get());
  SASM::InsertMissingDefaults(rows, master, after_.get());
}

std::vector<SettingsEdit::KeyChange> SettingsEdit::KeyChanges() const {
  std::vector<KeyChange> changes;
  for (const auto& entry : *after_) {
    const SettingDataItem* old = SASM::FindSetting(entry.key, *before_);
    if (old && ::AreEqual(*old, entry.value)) continue;
    changes.push_back({entry.key, entry.value});
  }
  for (const auto& entry : *before_) {
    if (SASM::FindSetting(entry.key, *after_)) continue;
    changes.push_back({entry.key, std::nullopt});
  }
  // The order of a dictionary says nothing to a reader.
  std::ranges::sort(changes, [](const KeyChange& a, const KeyChange& b) {
    return std::strcmp(a.key.c_str(), b.key.c_str()) < 0;
  });
  return changes;
}

std::vector<const char*> SettingsEdit::KeysOf(
    const Permission& permission) const {
  if (is_master_) return {permission.global_key};
  if (permission.limit_key) return {permission.limit_key};
  return {permission.always_key, permission.allow_key};
}

PermissionState SettingsEdit::StateIn(const SettingsDictionary& settings,
                                      const Permission& permission) const {
  return is_master_ ? GlobalState(permission, &settings)
                    : StoredState(permission, &settings);
}

double SettingsEdit::LimitIn(const SettingsDictionary& settings) const {
  return is_master_ ? GlobalLimitKb(&settings) : StoredLimitKb(&settings);
}

void SettingsEdit::Put(const PermissionChange& change) {
  const Permission& permission = *change.permission;
  if (change.is_limit) {
    if (LimitIn(*after_) == change.limit_kb) return;
    PutNumber(KeysOf(permission)[0], change.limit_kb, after_.get());
  } else if (StateIn(*after_, permission) != change.state) {
    const auto put = is_master_ ? PutGlobalState : PutSiteState;
    put(permission, change.state, after_.get());
  }
}

std::string SettingsEdit::Word(const Permission& permission,
                               const SettingsDictionary& settings) const {
  const auto is_missing = [&](const char* key) {
    return !SASM::FindSetting(key, settings);
  };
  if (std::ranges::all_of(KeysOf(permission), is_missing)) return kUnset;
  if (permission.limit_key) return LimitWord(LimitIn(settings));
  return ChoiceOrBlock(StateIn(settings, permission)).word;
}

std::vector<std::string> SettingsEdit::Lines(
    const std::vector<KeyChange>& changes) const {
  std::vector<std::string> lines;
  const auto add = [&](std::string_view what, const std::string& before,
                       const std::string& after) {
    lines.push_back(Line(SubjectOf(domain_),
                         Printable(what) + " " + before + kArrow + after));
  };
  std::vector<std::string_view> told;
  for (const Permission& permission : kPermissions) {
    const std::string before = Word(permission, *before_);
    const std::string after = Word(permission, *after_);
    if (before == after) continue;
    add(permission.word, before, after);
    std::ranges::copy(KeysOf(permission), std::back_inserter(told));
  }
  for (const KeyChange& change : changes) {
    if (std::ranges::count(told, change.key.c_str()) > 0) continue;
    add(change.key.c_str(),
        TextOrUnset(SASM::FindSetting(change.key, *before_)),
        TextOrUnset(change.value ? &*change.value : nullptr));
  }
  return lines;
}

Change SettingsEdit::ToChange() const {
  std::vector<KeyChange> changes = KeyChanges();
  std::vector<std::string> lines = Lines(changes);
  const auto make_changes = [changes = std::move(changes),
                             replaces_all =
                                 replaces_all_](SettingsDictionary& all) {
    if (replaces_all) all.clear();
    for (const KeyChange& change : changes) {
      const auto found = all.find(change.key);
      if (change.value) {
        all.insert(change.key, *change.value);
      } else if (found != all.end()) {
        all.erase(found);
      }
    }
  };
  return {SubjectOf(domain_), std::move(lines),
          [domain = domain_, make_changes](SASM::SettingsManager& manager) {
            return manager.ChangeSettings(domain, make_changes);
          }};
}
