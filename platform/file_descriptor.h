// An owned file descriptor.
#pragma once

#include <fcntl.h>
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

// Opens for reading, as openat(2) with these flags beside. Where the system
// permits it, the file keeps its time of last access.
[[nodiscard]] inline FileDescriptor OpenForReading(int directory,
                                                   const char* path,
                                                   int flags) {
  const int read_flags = flags | O_RDONLY | O_CLOEXEC;
  int descriptor = openat(directory, path, read_flags | O_NOATIME);
  if (descriptor < 0 && errno == EPERM) {  // the file is another user's
    descriptor = openat(directory, path, read_flags);
  }
  return FileDescriptor(descriptor);
}
