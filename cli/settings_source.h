// Settings files, opened for reading only; what is wrong with one is told on
// standard error.
#pragma once

#include <memory>

#include "store/settings_file.h"

// Whether a file's bytes could be read. kMissing is told to nobody.
enum class ReadResult { kDone, kMissing, kFailed };
[[nodiscard]] ReadResult ReadImage(const SASM::SimpleString& path,
                                   SASM::FileImage* image);

struct SettingsOnDisk {
  // Null when the store would make nothing of the file.
  std::unique_ptr<SASM::SettingsDictionary> dictionary;
  bool is_missing = false;
  // False also for a file that is read up to some damage.
  bool is_intact = false;
};
[[nodiscard]] SettingsOnDisk ReadSettings(const SASM::SimpleString& path);
