#include "store/settings_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <new>

#include "platform/file_descriptor.h"
#include "settings/settings_reader.h"

namespace SASM {
namespace {

// What fopen(3) gives a new file, less the process's mask.
constexpr mode_t kNewFileMode = 0666;

// Of a file below this size, what can be read is the whole file.
constexpr std::size_t kReadAtOnce = 65536;

bool SizeOfRegularFile(int descriptor, std::size_t* size) {
  struct stat info;
  if (fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode)) return false;
  *size = static_cast<std::size_t>(info.st_size);
  return *size <= kLargestSettingsFile;
}

// As many bytes as the file gives, at most `size`.
std::size_t ReadBytes(int descriptor, unsigned char* bytes, std::size_t size) {
  std::size_t taken = 0;
  while (taken < size) {
    const ssize_t count = read(descriptor, bytes + taken, size - taken);
    if (count <= 0) break;
    taken += static_cast<std::size_t>(count);
  }
  return taken;
}

}  // namespace

bool ReadFileImage(const SimpleString& path, FileImage* image) {
  image->short_of_memory = !path.HasText();
  if (path.IsEmpty()) return false;
  FileDescriptor file =
      OpenForReading(AT_FDCWD, path.c_str(), O_NONBLOCK | O_NOCTTY);
  if (!file.IsOpen() || !SizeOfRegularFile(file.Get(), &image->size)) {
    return false;
  }
  image->bytes.reset(new (std::nothrow) unsigned char[image->size]);
  image->short_of_memory = !image->bytes;
  if (image->short_of_memory) return false;
  const std::size_t taken =
      ReadBytes(file.Get(), image->bytes.get(), image->size);
  const bool read = taken == image->size || image->size < kReadAtOnce;
  image->size = taken;
  if (!read) {
    std::fputs(
        "SMSettingsManager: Pathological error when reading master "
        "settings.sol file.\n",
        stderr);
  }
  if (!file.Close()) {
    std::fputs("SMSettingsManager: Unable to close master settings.sol file.\n",
               stderr);
  }
  return read;
}

SettingsDictionary* ReadSettingsFile(const SimpleString& path,
                                     SimpleString** name,
                                     bool* short_of_memory) {
  FileImage image;
  const bool has_image = ReadFileImage(path, &image);
  SMImplementation::SettingsReader reader(image.bytes.get(), image.size);
  SettingsDictionary* dictionary =
      has_image ? reader.GetNewSettingsData(name) : nullptr;
  if (short_of_memory) {
    *short_of_memory = image.short_of_memory || reader.WasShortOfMemory();
  }
  return dictionary;
}

bool WriteFileImage(const SimpleString& path, const unsigned char* bytes,
                    std::size_t size) {
  if (path.IsEmpty()) return false;
  FileDescriptor file(open(path.c_str(),
                           O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW |
                               O_NONBLOCK | O_NOCTTY | O_CLOEXEC,
                           kNewFileMode));
  if (!file.IsOpen()) return false;
  while (size > 0) {
    const ssize_t count = write(file.Get(), bytes, size);
    if (count <= 0) return false;
    bytes += count;
    size -= static_cast<std::size_t>(count);
  }
  return file.Close();
}

}  // namespace SASM
