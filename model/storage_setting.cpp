#include "model/storage_setting.h"

#include <utility>

#include "model/permission_changes.h"

using SASM::SimpleString;
using State = StorageSetting::State;

namespace {

constexpr int kNoPosition = -999;
constexpr int kLowestPosition = -1;

}  // namespace

StorageSetting::StorageSetting(const char* key, SimpleString domain)
    : SettingBase(key, std::move(domain)),
      pending_position_(kNoPosition),
      is_master_(Domain() == SASM::SettingsManager::MasterDomain()) {
  if (!mNoneString) FetchTexts();
}

StorageSetting& StorageSetting::setSliderSetting(int position) {
  pending_position_ = position;
  return *this;
}

StorageSetting& StorageSetting::setPermissionState(State state) {
  pending_state_ = state;
  return *this;
}

void StorageSetting::revert() { pending_position_ = kNoPosition; }

bool StorageSetting::HasPendingPosition() const {
  return pending_position_ >= kLowestPosition;
}

bool StorageSetting::commit() {
  if (HasPendingPosition()) {
    setValue(linearSettingToKB(pending_position_));
    return true;
  }
  if (pending_state_ == PermissionSetting::kPermissionStateNone) return true;
  setValue(permissionSettingToKB(pending_state_));
  bool deleted = true;
  if (is_master_) {
    deleted = SetStateOfListedSites(kPermissions[kStorage], pending_state_);
  } else if (pending_state_ == PermissionSetting::kPermissionStateAlwaysDeny) {
    deleted = mSettingsManager->RemoveDomainInformation(Domain(), false, true);
  }
  pending_state_ = PermissionSetting::kPermissionStateNone;
  return deleted;
}

void StorageSetting::setValue(double limit_kb) {
  setDoubleValue(limit_kb);
  pending_position_ = kNoPosition;
}

void StorageSetting::setDontAsk(bool dont_ask) {
  setValue(dont_ask ? kBlock : kAsk);
}

double StorageSetting::getValue() const { return getDoubleValue(); }

State StorageSetting::getPermissionState() {
  return pending_state_ == PermissionSetting::kPermissionStateNone
             ? kbToPermissionSetting(getValue())
             : pending_state_;
}

int StorageSetting::getSliderSetting() const {
  return HasPendingPosition() ? pending_position_
                              : kbToLinearSetting(getValue());
}

int StorageSetting::getComboboxSetting() const {
  const bool is_blocked = !HasPendingPosition() && getValue() == kBlock;
  return is_blocked ? kLowestPosition : getSliderSetting();
}

const char* StorageSetting::getSliderLabel() const {
  const bool is_blocked = getValue() == kBlock;
  return LabelOf(is_blocked ? kLowestPosition : getSliderSetting());
}

double StorageSetting::spaceUsed() {
  return static_cast<double>(mSettingsManager->SizeOfLocalStorage(Domain()));
}

void StorageSetting::formatSpaceUsed(char* buffer, int size) {
  FormatSpace(spaceUsed(), buffer, size);
}

bool StorageSetting::isSettingLessThanOldValue() {
  if (HasPendingPosition()) {
    return pending_position_ < kbToLinearSetting(getValue());
  }
  return pending_state_ != PermissionSetting::kPermissionStateNone &&
         getValue() > permissionSettingToKB(pending_state_);
}

bool StorageSetting::isLessThanSpaceUsed() {
  const double limit_kb =
      pending_state_ == PermissionSetting::kPermissionStateNone
          ? linearSettingToKB(getSliderSetting())
          : permissionSettingToKB(pending_state_);
  return spaceUsed() > limit_kb * 1024;
}
