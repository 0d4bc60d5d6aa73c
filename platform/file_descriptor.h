// An owned file descriptor.
#pragma once

#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

// Closes its descriptor when it goes; -1 stands for none. Closing reports
// nothing: whoever must know closes with Close().
class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
  FileDescriptor(FileDescriptor&& other) noexcept
      : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~FileDescriptor() { (void)Close(); }

  [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
  [[nodiscard]] int Get() const { return descriptor_; }
  // The descriptor, which the caller closes.
  [[nodiscard]] int Release() { return std::exchange(descriptor_, -1); }
  // False when the system reports an error; the descriptor is gone all the
  // same (Linux: close(2)).
  bool Close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || close(descriptor) == 0;
  }

 private:
  int descriptor_;
};

// Calls until no signal interrupts the call; `call` returns -1 on failure.
template <typename Call>
auto RetryInterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

// The mode of a new file, less the process's mask: that of fopen(3).
inline constexpr mode_t kNewFileMode = 0666;

// Opens for reading, as openat(2) with these flags beside. Where the system
// permits it, the file keeps its time of last access.
[[nodiscard]] inline FileDescriptor OpenForReading(int directory,
                                                   const char* path,
                                                   int flags) {
  const int read_flags = flags | O_RDONLY | O_CLOEXEC;
  const auto open_with = [&](int more_flags) {
    return RetryInterrupted(
        [&] { return openat(directory, path, read_flags | more_flags); });
  };
  int descriptor = open_with(O_NOATIME);
  // Another user's file.
  if (descriptor < 0 && errno == EPERM) descriptor = open_with(0);
  return FileDescriptor(descriptor);
}

// What opens a directory for calls such as openat(2) and unlinkat(2) only.
inline constexpr int kPlaceFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

[[nodiscard]] inline FileDescriptor OpenPlace(int directory, const char* path,
                                              int more_flags = 0) {
  return FileDescriptor(RetryInterrupted(
      [&] { return openat(directory, path, kPlaceFlags | more_flags); }));
}
