#include "tests/support/call_hooks.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdarg>
#include <filesystem>

std::function<void(const std::string& directory, const std::string& name)>
    before_unlink;
std::function<void()> instead_of_waiting;
int openat_calls = 0;

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

int openat(int directory, const char* path, int flags, ...) {
  using Function = int(int, const char*, int, ...);
  static auto* const real =
      reinterpret_cast<Function*>(dlsym(RTLD_NEXT, "openat"));
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  ++openat_calls;
  return real(directory, path, flags, mode);
}

// What it is with _FORTIFY_SOURCE and flags the compiler does not know.
int __openat_2(int directory, const char* path, int flags) {
  return openat(directory, path, flags);
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
