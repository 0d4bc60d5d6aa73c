// The settings of one domain before and after a command.
#pragma once

#include <string>
#include <vector>

#include "cli/changes.h"

// True for the same type and value. All numbers that are none are equal; the
// two zeros differ.
[[nodiscard]] bool AreEqual(const SASM::SettingDataItem& a,
                            const SASM::SettingDataItem& b);

// What a command makes of the settings of one domain.
class SettingsEdit {
 public:
  // `before` is copied; null is empty.
  SettingsEdit(SASM::SimpleString domain,
               const SASM::SettingsDictionary* before);

  // Holds the same as `before` at first. May be changed until ToChange.
  [[nodiscard]] SASM::SettingsDictionary& After() { return *after_; }
  // Puts the state or the limit into After. Leaves a state alone that is there
  // already.
  void Put(const PermissionChange& change);
  // Lets the change first remove what the domain then holds. For a domain of
  // which `before` held nothing.
  void ReplaceAll() { replaces_all_ = true; }
  // Inserts into what was before, too.
  void InsertDefaults(const SASM::SettingsDictionary& master);

  // Makes the differences and writes once. One line for each permission that
  // differs: "SITE: camera ask → allow". One for each other key, and where the
  // words for a permission are the same.
  [[nodiscard]] Change ToChange() const;

 private:
  // A key that is set or, without a value, removed.
  struct KeyChange;
  [[nodiscard]] std::vector<KeyChange> KeyChanges() const;
  [[nodiscard]] std::vector<std::string> Lines(
      const std::vector<KeyChange>& changes) const;
  // The keys that hold it in this domain.
  [[nodiscard]] std::vector<const char*> KeysOf(
      const Permission& permission) const;
  [[nodiscard]] PermissionState StateIn(
      const SASM::SettingsDictionary& settings,
      const Permission& permission) const;
  [[nodiscard]] double LimitIn(const SASM::SettingsDictionary& settings) const;
  // The state or the limit, or "unset" where no key is there.
  [[nodiscard]] std::string Word(
      const Permission& permission,
      const SASM::SettingsDictionary& settings) const;

  SASM::SimpleString domain_;
  bool is_master_;
  bool replaces_all_ = false;
  std::unique_ptr<SASM::SettingsDictionary> before_;
  std::unique_ptr<SASM::SettingsDictionary> after_;
};

// What a domain is called in lines: its name, or "all sites".
[[nodiscard]] std::string SubjectOf(const SASM::SimpleString& domain);
