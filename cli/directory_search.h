// What a user does not expect in a directory of their own.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

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
