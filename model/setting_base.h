// One key of one domain, as a control reads and writes it.
#pragma once

#include "store/settings_manager.h"

// Names a setting, and is built where it is needed. Caches nothing: every get
// asks the settings manager, every set writes the domain's file at once. A
// setting that is missing or of another type reads as -1.0, false or null.
class SettingBase {
 public:
  // The first object of this class in a process creates its settings manager,
  // which loads the master settings.
  SettingBase(SASM::SimpleString key, SASM::SimpleString domain);

  void setDoubleValue(double value);
  // Sets `key`, not the object's own key; getBoolValue likewise.
  void setBoolValue(bool value, const SASM::SimpleString& key);
  // Stores a deep copy. The caller keeps `value`, which may be the stored list
  // itself; null is ignored.
  void setVectorValue(SASM::SDIVector* value);

  [[nodiscard]] double getDoubleValue() const;
  [[nodiscard]] bool getBoolValue(const SASM::SimpleString& key);
  // The stored list itself, borrowed until the setting is replaced.
  [[nodiscard]] SASM::SDIVector* getVectorValue();

  // A missing number reads as this.
  static constexpr double kNoNumber = -1.0;

  // The one manager of the process, never freed; null before the first
  // object of this class is built.
  static SASM::SettingsManager* mSettingsManager;

 protected:
  [[nodiscard]] const SASM::SimpleString& Domain() const { return domain_; }

 private:
  void Store(const SASM::SimpleString& key, SASM::_SettingsDataType type,
             const void* data);

  SASM::SimpleString key_;
  SASM::SimpleString domain_;
};
