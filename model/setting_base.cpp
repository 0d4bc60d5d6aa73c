#include "model/setting_base.h"

#include <utility>

#include "platform/linux_file_manager.h"

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SimpleString;

SASM::SettingsManager* SettingBase::mSettingsManager = nullptr;

SettingBase::SettingBase(SimpleString key, SimpleString domain)
    : key_(std::move(key)), domain_(std::move(domain)) {
  if (!mSettingsManager) {
    mSettingsManager = new SASM::SettingsManager(new LinuxFileManager);
  }
}

// The setters report no failure: a control shows what the manager then holds.
void SettingBase::Store(const SimpleString& key, SASM::_SettingsDataType type,
                        const void* data) {
  SettingDataItem item(key, type, data);
  (void)mSettingsManager->SetSetting(&item, key, domain_);
}

void SettingBase::setDoubleValue(double value) {
  Store(key_, SASM::kSettingsDataTypeDouble, &value);
}

void SettingBase::setBoolValue(bool value, const SimpleString& key) {
  Store(key, SASM::kSettingsDataTypeBool, &value);
}

void SettingBase::setVectorValue(SDIVector* value) {
  if (value) Store(key_, SASM::kSettingsDataTypeArray, value);
}

double SettingBase::getDoubleValue() const {
  return SASM::NumberOr(mSettingsManager->GetSetting(key_, domain_), kNoNumber);
}

bool SettingBase::getBoolValue(const SimpleString& key) {
  return SASM::BoolOr(mSettingsManager->GetSetting(key, domain_), false);
}

SDIVector* SettingBase::getVectorValue() {
  return SASM::ArrayOrNull(mSettingsManager->GetSetting(key_, domain_));
}
