// The settings of one domain before and after a command.
#pragma once

#include <string>
#include <vector>

#include "cli/changes.h"

// True for the same type and value. All numbers that are none are equal; the
// two zeros differ.
[[nodiscard]] bool AreEqual(const SASM::SettingDataItem& a,
                            const SASM::SettingDataItem& b);

// Two dictionaries of one domain. The first may be changed until Lines.
class SettingsEdit {
 public:
  // `before` is copied; null is empty.
  SettingsEdit(SASM::SimpleString domain,
               const SASM::SettingsDictionary* before);

  // Both hold the same at first.
  [[nodiscard]] SASM::SettingsDictionary& Before() { return *before_; }
  [[nodiscard]] SASM::SettingsDictionary& After() { return *after_; }
  // Lets Application first remove what the domain then holds. For a domain of
  // which Before knows nothing.
  void ReplaceAll() { replaces_all_ = true; }
  // Inserts into both.
  void InsertDefaults(const SASM::SettingsDictionary& master);

  // One line for each permission that differs: "SITE: camera ask → allow". One
  // for each other key, and where the words for a permission are the same.
  [[nodiscard]] std::vector<std::string> Lines() const;
  // Makes the differences and writes once; the result of the write.
  [[nodiscard]] std::function<bool(SASM::SettingsManager&)> Application() const;
  // Both of these.
  [[nodiscard]] Change ToChange() const;

 private:
  // A key that is set or, without a value, removed.
  struct KeyChange;
  [[nodiscard]] std::vector<KeyChange> KeyChanges() const;
  void AddPermissionLine(const Permission& permission,
                         std::vector<std::string>* lines,
                         std::vector<std::string>* told) const;
  // The keys that hold it in this domain.
  [[nodiscard]] std::vector<const char*> KeysOf(
      const Permission& permission) const;
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
