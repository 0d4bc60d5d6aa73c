#include "platform/open_below.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace {

FileDescriptor OpenWithoutLinks(int directory, const char* path,
                                std::uint64_t more_restrictions = 0) {
  open_how how = {};
  how.flags = kPlaceFlags;
  how.resolve = RESOLVE_NO_SYMLINKS | more_restrictions;
  // The C library has no function for it.
  return FileDescriptor(static_cast<int>(RetryInterrupted([&] {
    return syscall(SYS_openat2, directory, path, &how, sizeof how);
  })));
}

// For kernels before 5.6 and sandboxes that forbid openat2(2).
FileDescriptor OpenByComponents(FileDescriptor trusted, std::string_view way) {
  FileDescriptor reached = std::move(trusted);
  while (reached.IsOpen() && !way.empty()) {
    const std::string name(way.substr(0, way.find('/')));
    way.remove_prefix(std::min(name.size() + 1, way.size()));
    if (name.empty()) continue;
    if (name == "..") {
      errno = EXDEV;
      return FileDescriptor();
    }
    reached = OpenPlace(reached.Get(), name.c_str(), O_NOFOLLOW);
  }
  return reached;
}

// EAGAIN: the kernel could not rule out that a rename led out of `trusted`.
bool IsNoAnswer(int error) {
  return error == ENOSYS || error == EPERM || error == EAGAIN;
}

}  // namespace

FileDescriptor OpenBelow(std::string_view trusted, const char* path) {
  if (trusted.empty()) {  // or "/" would be
    errno = ENOENT;
    return FileDescriptor();
  }
  const bool is_below = std::string_view(path).starts_with(trusted);
  const char* way = is_below ? path + trusted.size() : path;
  if (!is_below || (*way && *way != '/')) {
    errno = EXDEV;
    return FileDescriptor();
  }
  // Common case: no link leads to `trusted` either.
  if (!std::strstr(way, "..")) {
    FileDescriptor reached = OpenWithoutLinks(AT_FDCWD, path);
    if (reached.IsOpen() || (errno != ELOOP && !IsNoAnswer(errno))) {
      return reached;
    }
  }
  FileDescriptor top = OpenPlace(AT_FDCWD, std::string(trusted).c_str());
  while (*way == '/') ++way;
  if (!top.IsOpen() || !*way) return top;
  FileDescriptor reached = OpenWithoutLinks(top.Get(), way, RESOLVE_BENEATH);
  if (reached.IsOpen() || !IsNoAnswer(errno)) return reached;
  return OpenByComponents(std::move(top), way);
}
