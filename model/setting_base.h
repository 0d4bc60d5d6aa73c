// One key of one domain, as a control reads and writes it.
#pragma once

#include "store/settings_manager.h"

// Names a setting. Caches nothing: every get asks the settings manager, every
// set writes the domain's file at once. A missing setting, and one of another
// type, reads as -1.0, false or null. Built where it is needed and dropped.
class SettingBase {
 public:
  // Copies both. The first setting built in a process creates its settings
  // manager, which loads the master settings.
  SettingBase(SASM::SimpleString key, SASM::SimpleString domain);

  void setDoubleValue(double value);
  // Of `key`, not of the setting's own key; likewise getBoolValue.
  void setBoolValue(bool value, const SASM::SimpleString& key);
  // Stores a deep copy; the caller keeps `value`, which may be the stored
  // list itself. Null stores nothing.
  void setVectorValue(SASM::SDIVector* value);

  [[nodiscard]] double getDoubleValue() const;
  [[nodiscard]] bool getBoolValue(const SASM::SimpleString& key);
  // The stored list itself, borrowed until the setting is replaced.
  [[nodiscard]] SASM::SDIVector* getVectorValue();

  // What a missing number reads as.
  static constexpr double kNoNumber = -1.0;

  // The one manager of the process, never freed; null before the first
  // setting is built.
  static SASM::SettingsManager* mSettingsManager;

 protected:
  [[nodiscard]] const SASM::SimpleString& Domain() const { return domain_; }

 private:
  void Store(const SASM::SimpleString& key, SASM::_SettingsDataType type,
             const void* data);

  SASM::SimpleString key_;
  SASM::SimpleString domain_;
};
