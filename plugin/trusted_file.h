// Files that only root and the user can have put where they are.
#pragma once

#include <string>

// The path of a file without links, when all of this is true:
//   - `path` is absolute and names a regular file, links followed;
//   - the file and every directory above it belong to root or to the user;
//   - nobody else may write to any of them, except for directories with the
//     sticky bit, whose entries only their owners can replace.
// Empty when it is not, and then nothing has been opened.
[[nodiscard]] std::string TrustedFile(const char* path);
