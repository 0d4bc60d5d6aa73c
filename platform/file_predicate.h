// The choice of the files that a removal takes.
#pragma once

#include <sys/stat.h>

// Decides which files a removal takes.
class FilePredicate {
 public:
  virtual ~FilePredicate() = default;
  // True to remove the file. `path` is its full path, `info` what the system
  // reports about it; for a symbolic link, about the link itself.
  virtual bool test(char const* path, struct stat& info) = 0;
};
