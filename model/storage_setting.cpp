#include "model/storage_setting.h"

#include <utility>

#include "model/permission_changes.h"

using SASM::SimpleString;

namespace {

constexpr int kNoPosition = -999;
constexpr int kLowestPosition = -1;
constexpr int kUnlimitedPosition = 5;

struct SliderPosition {
  int position;
  double limit_kb;
  const char* label;
};

constexpr SliderPosition kSliderPositions[] = {
    {kLowestPosition, kLimitOfBlock, "Don't ask"},
    {0, kLimitOfAsk, "Never"},
    {1, 10.0, "10 KB"},
    {2, 100.0, "100 KB"},
    {3, 1024.0, "1 MB"},
    {4, 10240.0, "10 MB"},
    {kUnlimitedPosition, kUnlimited, "Unlimited"},
};
constexpr SliderPosition kNoSuchPosition = {kNoPosition, 0.0, "Undefined"};

const SliderPosition& AtPosition(int position) {
  for (const SliderPosition& row : kSliderPositions) {
    if (row.position == position) return row;
  }
  return kNoSuchPosition;
}

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

StorageSetting& StorageSetting::setPermissionState(PermissionState state) {
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
  if (pending_state_ == kPermissionStateNone) return true;
  setValue(permissionSettingToKB(pending_state_));
  bool deleted = true;
  if (is_master_) {
    deleted = SetStateOfListedSites(kPermissions[kStorage], pending_state_);
  } else if (pending_state_ == kPermissionStateAlwaysDeny) {
    deleted = mSettingsManager->RemoveDomainInformation(Domain(), false, true);
  }
  pending_state_ = kPermissionStateNone;
  return deleted;
}

void StorageSetting::setValue(double limit_kb) {
  setDoubleValue(limit_kb);
  pending_position_ = kNoPosition;
}

void StorageSetting::setDontAsk(bool dont_ask) {
  setValue(dont_ask ? kLimitOfBlock : kLimitOfAsk);
}

double StorageSetting::getValue() const { return getDoubleValue(); }

PermissionState StorageSetting::getPermissionState() {
  return pending_state_ == kPermissionStateNone
             ? kbToPermissionSetting(getValue())
             : pending_state_;
}

int StorageSetting::getSliderSetting() const {
  return HasPendingPosition() ? pending_position_
                              : kbToLinearSetting(getValue());
}

int StorageSetting::getComboboxSetting() const {
  const bool is_blocked = !HasPendingPosition() && getValue() == kLimitOfBlock;
  return is_blocked ? kLowestPosition : getSliderSetting();
}

const char* StorageSetting::getSliderLabel() const {
  const bool is_blocked = getValue() == kLimitOfBlock;
  return AtPosition(is_blocked ? kLowestPosition : getSliderSetting()).label;
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
  return pending_state_ != kPermissionStateNone &&
         getValue() > permissionSettingToKB(pending_state_);
}

bool StorageSetting::isLessThanSpaceUsed() {
  const double limit_kb = pending_state_ == kPermissionStateNone
                              ? linearSettingToKB(getSliderSetting())
                              : permissionSettingToKB(pending_state_);
  return spaceUsed() > limit_kb * 1024;
}

double StorageSetting::linearSettingToKB(int position) {
  return AtPosition(position).limit_kb;
}

int StorageSetting::kbToLinearSetting(double limit_kb) {
  if (limit_kb == kUnlimited) return kUnlimitedPosition;
  if (!(limit_kb > 0)) return 0;
  for (const SliderPosition& row : kSliderPositions) {
    if (row.limit_kb > 0 && limit_kb <= row.limit_kb) return row.position;
  }
  return kUnlimitedPosition;
}

double StorageSetting::permissionSettingToKB(PermissionState state) {
  const PermissionChoice* choice = FindChoice(state);
  return choice ? choice->limit_kb : kLimitOfAsk;
}

PermissionState StorageSetting::kbToPermissionSetting(double limit_kb) {
  return StateOfLimit(limit_kb);
}
