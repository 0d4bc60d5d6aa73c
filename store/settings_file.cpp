#include "store/settings_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <string>

#include "platform/file_descriptor.h"
#include "settings/settings_reader.h"

namespace SASM {
namespace {

// A file below this size is whole however short it is read.
constexpr std::size_t kReadAtOnce = 65536;

constexpr int kReadFlags = O_NONBLOCK | O_NOCTTY;
constexpr int kCreateFlags =
    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_NOCTTY | O_CLOEXEC;

// How often a file that another program puts in the way is removed again.
constexpr int kMostAttempts = 4;

// False with errno 0 for what can be no settings file.
bool SizeOfRegularFile(int file, std::size_t* size) {
  struct stat info;
  if (fstat(file, &info) != 0) return false;
  *size = static_cast<std::size_t>(info.st_size);
  errno = 0;
  return S_ISREG(info.st_mode) && *size <= kLargestSettingsFile;
}

// As many bytes as the file has, at most `size`, which becomes their number.
bool ReadBytes(int file, unsigned char* bytes, std::size_t* size) {
  const std::size_t wanted = *size;
  *size = 0;
  while (*size < wanted) {
    const ssize_t count = RetryInterrupted(
        [&] { return read(file, bytes + *size, wanted - *size); });
    if (count < 0) return false;
    if (count == 0) break;
    *size += static_cast<std::size_t>(count);
  }
  return true;
}

// False for an image that ends before its header says so.
bool IsComplete(const FileImage& image) {
  SMImplementation::SettingsReader reader(image.bytes.get(), image.size);
  reader.KeepQuiet();
  unsigned short type = 0;
  unsigned int length = 0;
  reader.GetHeaderInfo(&type, &length);
  return !reader.TakeFault().what && length <= image.size - reader.Position();
}

// Most files are small, and read with one call. It leaves the position alone,
// and refuses pipes and terminals.
bool ReadSmallFile(int file, FileImage* image) {
  constexpr std::size_t kSmall = 1024;
  image->bytes.reset(new unsigned char[kSmall]);
  const ssize_t count = RetryInterrupted(
      [&] { return pread(file, image->bytes.get(), kSmall, 0); });
  image->size = static_cast<std::size_t>(count);
  return count >= 0 && image->size < kSmall && IsComplete(*image);
}

// False with ESTALE, after a line that says so, for a file that has become
// shorter meanwhile.
bool ReadFileOfAnySize(int file, FileImage* image) {
  if (!SizeOfRegularFile(file, &image->size)) return false;
  const std::size_t wanted = image->size;
  image->bytes.reset(new unsigned char[wanted]);
  if (!ReadBytes(file, image->bytes.get(), &image->size)) return false;
  if (image->size == wanted || wanted < kReadAtOnce) return true;
  std::fputs(
      "SMSettingsManager: Pathological error when reading master "
      "settings.sol file.\n",
      stderr);
  errno = ESTALE;
  return false;
}

bool ReadOpenFile(const FileDescriptor& file, FileImage* image) {
  return file.IsOpen() && (ReadSmallFile(file.Get(), image) ||
                           ReadFileOfAnySize(file.Get(), image));
}

bool ReadOnce(const char* path, FileImage* image) {
  FileDescriptor file = OpenForReading(AT_FDCWD, path, kReadFlags);
  if (!ReadOpenFile(file, image)) return false;
  if (!file.Close()) {
    std::fputs("SMSettingsManager: Unable to close master settings.sol file.\n",
               stderr);
  }
  return true;
}

SimpleString DirectoryOf(const SimpleString& path) {
  const std::string text = path.c_str();
  return SimpleString(text.substr(0, text.rfind('/')).c_str());
}

bool WriteBytes(int file, std::span<const unsigned char> bytes) {
  while (!bytes.empty()) {
    const ssize_t count = RetryInterrupted(
        [&] { return write(file, bytes.data(), bytes.size()); });
    if (count <= 0) return false;
    bytes = bytes.subspan(static_cast<std::size_t>(count));
  }
  return true;
}

// Removes the file, if there is one, and creates it with these bytes.
bool CreateFile(int directory, const char* name,
                std::span<const unsigned char> bytes) {
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    if (unlinkat(directory, name, 0) != 0 && errno != ENOENT) return false;
    FileDescriptor file(RetryInterrupted(
        [&] { return openat(directory, name, kCreateFlags, kNewFileMode); }));
    if (file.IsOpen()) return WriteBytes(file.Get(), bytes) && file.Close();
    if (errno != EEXIST) return false;
  }
  return false;
}

}  // namespace

bool LeavesContentUnknown(int error) {
  constexpr int kSaysWhatIsThere[] = {
      0,     ENOENT, ENOTDIR,      EACCES,
      EPERM, ELOOP,  ENAMETOOLONG, ENXIO /* socket */};
  return std::ranges::count(kSaysWhatIsThere, error) == 0;
}

bool ReadFileImage(const SimpleString& path, FileImage* image) {
  for (int looks_left = kMoreLooks;; --looks_left) {
    const bool is_read = ReadOnce(path.c_str(), image);
    const int error = errno;
    const bool may_be_rewritten =
        is_read ? !IsComplete(*image) : error == ENOENT || error == ESTALE;
    if (!may_be_rewritten || looks_left == 0 ||
        !WasJustChanged(DirectoryOf(path)) || !WaitForWriter()) {
      errno = error;
      return is_read;
    }
  }
}

bool MayHoldSettings(int directory, const SimpleString& path) {
  struct stat info;
  if (fstatat(directory, path.c_str(), &info, 0) == 0) {
    return info.st_size != 0;
  }
  return LeavesContentUnknown(errno);
}

bool WasJustChanged(const SimpleString& path) {
  struct stat info;
  timespec now;
  if (stat(path.c_str(), &info) != 0) return false;
  clock_gettime(CLOCK_REALTIME, &now);
  const auto seconds = now.tv_sec - info.st_mtim.tv_sec;
  return seconds == 0 || (seconds == 1 && now.tv_nsec < info.st_mtim.tv_nsec);
}

bool WaitForWriter() {
  static std::time_t second = 0;
  static int waits = 0;
  if (const std::time_t now = std::time(nullptr); now != second) {
    second = now;
    waits = 0;
  }
  if (waits == kMostWaitsPerSecond) return false;
  ++waits;
  usleep(kWriterMilliseconds * 1000);
  return true;
}

bool ReplaceFile(int directory, const char* name,
                 std::span<const unsigned char> bytes) {
  FileDescriptor old_file =
      OpenForReading(directory, name, kReadFlags | O_NOFOLLOW);
  const bool is_there = old_file.IsOpen();
  if (!is_there && LeavesContentUnknown(errno)) return false;
  if (CreateFile(directory, name, bytes)) return true;
  FileImage old;
  const bool is_read = ReadOpenFile(old_file, &old);
  old_file.Close();  // its room and its descriptor may be the last
  if (CreateFile(directory, name, bytes)) return true;  // the fault may pass
  const int error = errno;
  if (is_read) {
    (void)CreateFile(directory, name, old.Bytes());  // nothing else helps
  } else if (!is_there) {
    (void)unlinkat(directory, name, 0);  // or it would be a torn file
  }
  errno = error;
  return false;
}

}  // namespace SASM
