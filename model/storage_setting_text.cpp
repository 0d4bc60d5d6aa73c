// The space used as text. Uses no settings manager.
#include <cmath>
#include <cstdio>

#include "model/storage_setting.h"
#include "strings/string_manager.h"

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

// The formats come from the table of texts, where the compiler checks their
// placeholders.
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

std::string StorageSetting::TextOfSpace(double bytes) {
  char text[kSpaceTextSize];
  FormatSpace(bytes, text, sizeof text);
  return text;
}
