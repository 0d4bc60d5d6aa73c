#include "tests/support/privileges.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iterator>

namespace {

constexpr uid_t kNobody = 65534;

}  // namespace

OrdinaryUser::OrdinaryUser(const TemporaryHome& home)
    : was_root_(geteuid() == 0) {
  if (!was_root_) return;
  setenv("HOME", home.Path().c_str(), 1);
  EXPECT_EQ(std::system("chown -Rh 65534 \"$HOME\""), 0);
  EXPECT_EQ(seteuid(kNobody), 0);
}

OrdinaryUser::~OrdinaryUser() {
  if (!was_root_) return;
  EXPECT_EQ(seteuid(0), 0);
}

LoweredLimit::LoweredLimit(int resource, rlim_t limit) : resource_(resource) {
  std::signal(SIGXFSZ, SIG_IGN);
  EXPECT_EQ(getrlimit(static_cast<__rlimit_resource>(resource_), &former_), 0);
  const rlimit lowered = {limit, former_.rlim_max};
  EXPECT_EQ(setrlimit(static_cast<__rlimit_resource>(resource_), &lowered), 0);
}

LoweredLimit::~LoweredLimit() {
  EXPECT_EQ(setrlimit(static_cast<__rlimit_resource>(resource_), &former_), 0);
}

std::ptrdiff_t CountDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                       {});
}
