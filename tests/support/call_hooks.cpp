#include "tests/support/call_hooks.h"

#include <dlfcn.h>
#include <unistd.h>

#include <filesystem>

std::function<void(const std::string& directory, const std::string& name)>
    before_unlink;
std::function<void()> instead_of_waiting;

// These are found before those of the C library.
extern "C" {

int usleep(useconds_t microseconds) {
  using Function = int(useconds_t);
  static auto* const real =
      reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "usleep"));
  if (!instead_of_waiting) return real(microseconds);
  instead_of_waiting();
  return 0;
}

int unlinkat(int directory, const char* name, int flags) {
  using Function = int(int, const char*, int);
  static auto* const real =
      reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "unlinkat"));
  if (before_unlink) {
    const auto entry = "/proc/self/fd/" + std::to_string(directory);
    before_unlink(std::filesystem::read_symlink(entry), name);
  }
  return real(directory, name, flags);
}

}  // extern "C"
