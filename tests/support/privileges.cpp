#include "tests/support/privileges.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/support/call_hooks.h"

LoweredLimit::LoweredLimit(int resource, rlim_t limit) : resource_(resource) {
  std::signal(SIGXFSZ, SIG_IGN);
  EXPECT_EQ(getrlimit(static_cast<__rlimit_resource>(resource_), &former_), 0);
  const rlimit lowered = {limit, former_.rlim_max};
  EXPECT_EQ(setrlimit(static_cast<__rlimit_resource>(resource_), &lowered), 0);
}

LoweredLimit::~LoweredLimit() {
  EXPECT_EQ(setrlimit(static_cast<__rlimit_resource>(resource_), &former_), 0);
}

rlim_t MemoryLimit(rlim_t bytes) {
  if (!faults::kAllocationsCanFail) return RLIM_INFINITY;
  std::ifstream statm("/proc/self/statm");
  rlim_t pages = 0;
  for (int field = 0; field < 6; ++field) statm >> pages;
  return pages * static_cast<rlim_t>(getpagesize()) + bytes;
}

std::ptrdiff_t CountDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       {});
}
