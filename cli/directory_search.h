// What is in directories. Changes nothing.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "settings/simple_string.h"

// False only when certainly nothing is there, not even a link.
[[nodiscard]] bool IsThere(const SASM::SimpleString& path);

// Appends the names in the directory, in natural order. False, with an error
// number, when it cannot be read; true when it does not exist.
[[nodiscard]] bool ListDirectory(const SASM::SimpleString& directory,
                                 std::vector<std::string>* names);

// True when the tree at `path` holds a file, or anything else but a directory,
// that was changed longer ago than this, or cannot be opened. Follows no link
// below the directory `trusted`, with which `path` begins.
[[nodiscard]] bool HasFileOlderThan(const char* trusted, const char* path,
                                    unsigned long age_seconds);

// What a user does not expect in a directory of their own.
struct OddEntry {
  enum class Oddity { kOtherOwner, kLink };
  std::string path;
  Oddity oddity;
  uid_t owner;
};

// The directory itself, and everything below it, that does not belong to
// `owner`, and every link in it that is in the place of a directory. Follows no
// link but the one that `directory` may be.
[[nodiscard]] std::vector<OddEntry> FindOddEntries(const std::string& directory,
                                                   uid_t owner);
