// An owned file descriptor.
#pragma once

#include <unistd.h>

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
  // False when the system reports an error; the descriptor is gone all the
  // same (Linux: close(2)).
  bool Close() {
    const int descriptor = std::exchange(descriptor_, -1);
    return descriptor < 0 || close(descriptor) == 0;
  }

 private:
  int descriptor_;
};
