// One settings file, read and written whole.
#pragma once

#include <cstddef>
#include <memory>

#include "settings/settings_dictionary.h"

namespace SASM {

// The bytes of a file.
struct FileImage {
  std::unique_ptr<unsigned char[]> bytes;
  std::size_t size = 0;
  // True when it is not known what the file holds.
  bool short_of_memory = false;
};

// False without a message when the file cannot be opened, is no regular file,
// or is larger than kLargestSettingsFile; false with a message when it cannot
// be read whole. Opens for reading only and never waits for a writer.
[[nodiscard]] bool ReadFileImage(const SimpleString& path, FileImage* image);

// Far above what a player ever wrote, low enough that a file of the worst kind,
// which takes thirty-six times its size, can be held in memory.
inline constexpr std::size_t kLargestSettingsFile = std::size_t{64} << 20;

// The dictionary in a settings file, owned by the caller; null when there is
// no image or the reader rejects it, or when memory is short, which
// `*short_of_memory` then tells. `*name` becomes a new string with the name
// the file carries, owned by the caller, or stays as it was.
[[nodiscard]] SettingsDictionary* ReadSettingsFile(
    const SimpleString& path, SimpleString** name,
    bool* short_of_memory = nullptr);

// Creates the file, or empties it, and writes the bytes. Never through a link
// in the file's place. False when not every byte was written.
[[nodiscard]] bool WriteFileImage(const SimpleString& path,
                                  const unsigned char* bytes, std::size_t size);

}  // namespace SASM
