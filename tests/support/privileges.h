// What the process of a test may do and holds.
#pragma once

#include <sys/resource.h>

#include <cstddef>

// Lowers a limit of the process. Going past that of file sizes is an error
// of the write then, not the end of the process.
class LoweredLimit {
 public:
  LoweredLimit(int resource, rlim_t limit);
  ~LoweredLimit();
  LoweredLimit(const LoweredLimit&) = delete;
  LoweredLimit& operator=(const LoweredLimit&) = delete;

 private:
  int resource_;
  rlimit former_;
};

// The limit of RLIMIT_DATA that leaves so many bytes; none for a sanitizer.
rlim_t MemoryLimit(rlim_t bytes);

// The number of descriptors that the process has open.
std::ptrdiff_t CountDescriptors();
