#include "model/storage_setting.h"

#include <cmath>
#include <cstdio>
#include <utility>

#include "store/setting_keys.h"
#include "strings/string_manager.h"

using SASM::SimpleString;
using State = StorageSetting::State;

namespace {

constexpr double kBlock = -1.0;
constexpr double kAsk = 0.0;
constexpr double kUnlimited = -2.0;
constexpr double kAllowedByDefault = 100.0;  // kilobytes

constexpr int kNoPosition = -999;
constexpr int kLowestPosition = -1;

struct SliderPosition {
  int position;
  double limit_kb;
  const char* label;
};

constexpr SliderPosition kSliderPositions[] = {
    {-1, kBlock, "Don't ask"},    {0, kAsk, "Never"},  {1, 10.0, "10 KB"},
    {2, 100.0, "100 KB"},         {3, 1024.0, "1 MB"}, {4, 10240.0, "10 MB"},
    {5, kUnlimited, "Unlimited"},
};
constexpr int kUnlimitedPosition = 5;
constexpr SliderPosition kNoSuchPosition = {kNoPosition, 0.0, "Undefined"};

const SliderPosition& AtPosition(int position) {
  for (const SliderPosition& row : kSliderPositions) {
    if (row.position == position) return row;
  }
  return kNoSuchPosition;
}

}  // namespace

const char* StorageSetting::mNoneString = nullptr;
const char* StorageSetting::mBytesFormat = nullptr;
const char* StorageSetting::mKBFormat = nullptr;
const char* StorageSetting::mMBFormat = nullptr;
const char* StorageSetting::mGBFormat = nullptr;

StorageSetting::StorageSetting(const char* key, SimpleString domain)
    : SettingBase(key, std::move(domain)),
      pending_position_(kNoPosition),
      is_master_(Domain() == SASM::SettingsManager::MasterDomain()) {
  if (!mNoneString) FetchTexts();
}

void StorageSetting::FetchTexts() {
  StringManager strings;
  mNoneString = strings.GetString(21200);
  mBytesFormat = strings.GetString(21201);
  mKBFormat = strings.GetString(21202);
  mMBFormat = strings.GetString(21203);
  mGBFormat = strings.GetString(21204);
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
    deleted = CommitToAllSites();
  } else if (pending_state_ == PermissionSetting::kPermissionStateAlwaysDeny) {
    deleted = mSettingsManager->RemoveDomainInformation(Domain(), false, true);
  }
  pending_state_ = PermissionSetting::kPermissionStateNone;
  return deleted;
}

bool StorageSetting::CommitToAllSites() {
  bool deleted = true;
  const SASM::SDIVector* domains = mSettingsManager->GetDomains();
  for (unsigned int i = 0; domains && i < domains->count; ++i) {
    StorageSetting site(SASM::kStorageLimit, domains->At(i)->name);
    if (site.is_master_) continue;  // it would come back here for ever
    deleted = site.setPermissionState(pending_state_).commit() && deleted;
  }
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
  return AtPosition(is_blocked ? kLowestPosition : getSliderSetting()).label;
}

double StorageSetting::spaceUsed() {
  return static_cast<double>(mSettingsManager->SizeOfLocalStorage(Domain()));
}

void StorageSetting::formatSpaceUsed(char* buffer, int size) {
  FormatSpace(spaceUsed(), buffer, size);
}

// The formats are the table's, which checks their placeholders when it is
// compiled.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
void StorageSetting::FormatSpace(double bytes, char* buffer, int size) {
  constexpr double kKB = 1024;
  constexpr double kMB = kKB * 1024;
  constexpr double kGB = kMB * 1024;
  if (size <= 0) return;
  if (!mNoneString) FetchTexts();
  const auto capacity = static_cast<std::size_t>(size);
  if (!(bytes > 0)) {
    std::snprintf(buffer, capacity, "%s", mNoneString);
  } else if (bytes >= kGB) {
    std::snprintf(buffer, capacity, mGBFormat,
                  static_cast<double>(static_cast<float>(bytes / kGB)));
  } else if (bytes >= kMB) {
    std::snprintf(buffer, capacity, mMBFormat,
                  static_cast<double>(static_cast<float>(bytes / kMB)));
  } else if (bytes >= kKB) {
    std::snprintf(buffer, capacity, mKBFormat,
                  static_cast<int>(std::round(bytes / kKB)));
  } else {
    std::snprintf(buffer, capacity, mBytesFormat, static_cast<int>(bytes));
  }
}
#pragma GCC diagnostic pop

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

double StorageSetting::permissionSettingToKB(State state) {
  if (state == PermissionSetting::kPermissionStateAlwaysAllow) {
    return kAllowedByDefault;
  }
  const bool blocks = state == PermissionSetting::kPermissionStateAlwaysDeny;
  return blocks ? kBlock : kAsk;
}

State StorageSetting::kbToPermissionSetting(double limit_kb) {
  if (limit_kb > 0 || limit_kb == kUnlimited) {
    return PermissionSetting::kPermissionStateAlwaysAllow;
  }
  return limit_kb < 0 ? PermissionSetting::kPermissionStateAlwaysDeny
                      : PermissionSetting::kPermissionStateAlwaysAsk;
}
