// One settings file, read and written whole.
#pragma once

#include <cstddef>
#include <memory>
#include <span>

#include "settings/settings_dictionary.h"

namespace SASM {

// The bytes of a file.
struct FileImage {
  std::unique_ptr<unsigned char[]> bytes;
  std::size_t size = 0;

  [[nodiscard]] std::span<const unsigned char> Bytes() const {
    return {bytes.get(), size};
  }
};

// Far above what a player ever wrote, low enough that a file of the worst kind,
// which takes thirty-six times its size, can be held in memory.
inline constexpr std::size_t kLargestSettingsFile = std::size_t{64} << 20;

// Reads the file for reading only, without waiting for the writer of a pipe.
// A file that is missing, empty or cut off in a directory that was changed
// within the last second may be in the middle of being written by the plug-in:
// it is looked at again up to kMoreLooks times, as long as WaitForWriter
// permits.
//
// False when the file cannot be opened, cannot be read whole, is no regular
// file or is larger than kLargestSettingsFile. errno then says why, and is 0
// for a file that can be no settings file; LeavesContentUnknown says what
// follows. Prints a line about a file that changes while it is read.
[[nodiscard]] bool ReadFileImage(const SimpleString& path, FileImage* image);

// True for a failure that says nothing about what the file holds, such as too
// many open files. False for one that says that there is no file, or none that
// the user may read, and for 0.
[[nodiscard]] bool LeavesContentUnknown(int error);

// False when there is no file at `path`, links followed, or an empty one; the
// path is relative to the open directory `directory`, as for fstatat(2). True
// also when that could not be found out.
[[nodiscard]] bool MayHoldSettings(int directory, const SimpleString& path);

// Whether the directory at `path` was changed within the last second, so that
// what is missing in it may be there soon.
[[nodiscard]] bool WasJustChanged(const SimpleString& path);
// Waits for kWriterMilliseconds; false, at once, when the process has done so
// kMostWaitsPerSecond times in the current second of the clock.
[[nodiscard]] bool WaitForWriter();

inline constexpr int kMoreLooks = 3;  // the most after the first
inline constexpr int kWriterMilliseconds = 5;
inline constexpr int kMostWaitsPerSecond = 20;

// Replaces the file `name` in the open directory `directory`: removes it, then
// creates a new one with these bytes, never through a link. The old file is
// held open until then. False when the bytes could not be written whole; those
// of the old file are then read and written back, and lost where that fails
// too. False with nothing changed when the old file could not be opened (see
// LeavesContentUnknown) or removed; errno then says why.
[[nodiscard]] bool ReplaceFile(int directory, const char* name,
                               std::span<const unsigned char> bytes);

}  // namespace SASM
