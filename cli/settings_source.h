// Settings files, opened for reading only. Damage and failures are reported on
// standard error.
#pragma once

#include <memory>

#include "store/settings_file.h"

// kMissing is not reported.
enum class ReadResult { kDone, kMissing, kFailed };
[[nodiscard]] ReadResult ReadImage(const SASM::SimpleString& path,
                                   SASM::FileImage* image);

struct SettingsOnDisk {
  // Null when the file cannot be read as settings.
  std::unique_ptr<SASM::SettingsDictionary> dictionary;
  bool is_missing = false;
  // False for a file that is missing, unreadable or damaged, even if a part of
  // it could be read.
  bool is_intact = false;
};
[[nodiscard]] SettingsOnDisk ReadSettings(const SASM::SimpleString& path);
