// Settings files, opened for reading only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "store/settings_file.h"

// What is wrong with a file. Has no text when nothing is.
struct FileProblem {
  std::string text;
  // Where, if it is about some byte of the file.
  std::optional<std::uint64_t> offset;

  [[nodiscard]] bool Exists() const { return !text.empty(); }
  // "byte OFFSET: TEXT", without the offset if there is none.
  [[nodiscard]] std::string Message() const {
    return offset ? "byte " + std::to_string(*offset) + ": " + text : text;
  }
};

enum class ReadResult { kDone, kMissing, kFailed };
// `*problem` is set unless the result is kDone.
[[nodiscard]] ReadResult ReadImage(const SASM::SimpleString& path,
                                   SASM::FileImage* image,
                                   FileProblem* problem);

struct SettingsOnDisk {
  // Null when the file cannot be read as settings.
  std::unique_ptr<SASM::SettingsDictionary> dictionary;
  bool is_missing = false;
  // What is wrong with a file that is unreadable or damaged, even if a part of
  // it could be read. Nothing for a missing file.
  FileProblem problem;

  [[nodiscard]] bool IsIntact() const {
    return !is_missing && !problem.Exists();
  }
};
[[nodiscard]] SettingsOnDisk ReadSettings(const SASM::SimpleString& path);
