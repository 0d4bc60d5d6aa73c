// What a limit and a number of bytes mean. Asks no settings manager.
#include <cmath>
#include <cstdio>

#include "model/storage_setting.h"
#include "strings/string_manager.h"

using State = StorageSetting::State;

namespace {

constexpr double kAllowedByDefault = 100.0;  // kilobytes

struct SliderPosition {
  int position;
  double limit_kb;
  const char* label;
};

constexpr SliderPosition kSliderPositions[] = {
    {-1, StorageSetting::kBlock, "Don't ask"},
    {0, StorageSetting::kAsk, "Never"},
    {1, 10.0, "10 KB"},
    {2, 100.0, "100 KB"},
    {3, 1024.0, "1 MB"},
    {4, 10240.0, "10 MB"},
    {5, StorageSetting::kUnlimited, "Unlimited"},
};
constexpr int kUnlimitedPosition = 5;
constexpr SliderPosition kNoSuchPosition = {-999, 0.0, "Undefined"};

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

void StorageSetting::FetchTexts() {
  StringManager strings;
  mNoneString = strings.GetString(21200);
  mBytesFormat = strings.GetString(21201);
  mKBFormat = strings.GetString(21202);
  mMBFormat = strings.GetString(21203);
  mGBFormat = strings.GetString(21204);
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

const char* StorageSetting::LabelOf(int position) {
  return AtPosition(position).label;
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
