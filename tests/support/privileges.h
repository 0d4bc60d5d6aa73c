// What the process of a test may do and holds.
#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>

#include "tests/support/call_hooks.h"

// Lowers a limit of the process. Going past that of file sizes is an error
// of the write then, not the end of the process.
class LoweredLimit {
 public:
  LoweredLimit(int resource, rlim_t limit)
      : resource_(static_cast<__rlimit_resource>(resource)) {
    std::signal(SIGXFSZ, SIG_IGN);
    EXPECT_EQ(getrlimit(resource_, &former_), 0);
    const rlimit lowered = {limit, former_.rlim_max};
    EXPECT_EQ(setrlimit(resource_, &lowered), 0);
  }
  ~LoweredLimit() { EXPECT_EQ(setrlimit(resource_, &former_), 0); }
  LoweredLimit(const LoweredLimit&) = delete;
  LoweredLimit& operator=(const LoweredLimit&) = delete;

 private:
  __rlimit_resource resource_;
  rlimit former_;
};

// The limit of RLIMIT_DATA that leaves so many bytes; none for a sanitizer.
inline rlim_t MemoryLimit(rlim_t bytes) {
  if (!faults::kAllocationsCanFail) return RLIM_INFINITY;
  std::ifstream statm("/proc/self/statm");
  rlim_t pages = 0;
  for (int field = 0; field < 6; ++field) statm >> pages;
  return pages * static_cast<rlim_t>(getpagesize()) + bytes;
}

// The number of descriptors that the process has open.
inline std::ptrdiff_t CountDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       {});
}
