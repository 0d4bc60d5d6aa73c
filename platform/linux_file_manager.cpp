#include "platform/linux_file_manager.h"

#include <dirent.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <new>
#include <string_view>

#include "platform/file_descriptor.h"
#include "platform/home_directory.h"
#include "platform/tree_removal.h"
#include "platform/tree_size.h"

using SASM::SimpleString;

namespace {

constexpr char kPathSeparator[] = "/";
constexpr char kUserSettingsBaseDir[] = "~/.orbelline/Corvane_Player";
constexpr char kAssetCacheDir[] = "~/.tessary/Corvane_Player/AssetCache";
constexpr char kDRMLicenseDataDir[] =
    "~/.tessary/Corvane_Player/APSPrivateData2";

// Only its owner has a say in a directory of settings.
constexpr mode_t kDirectoryMode = 0700;

bool MakeDirectory(const char* path) {
  if (access(path, F_OK) == 0 || mkdir(path, kDirectoryMode) == 0) return true;
  std::perror("CreateDirectoryAtPath");
  return false;
}

DIR* OpenDirectory(const char* path) {
  FileDescriptor descriptor = OpenForReading(AT_FDCWD, path, O_DIRECTORY);
  DIR* directory = descriptor.IsOpen() ? fdopendir(descriptor.Get()) : nullptr;
  if (directory) (void)descriptor.Release();  // closedir closes it
  return directory;
}

struct CloseDirectory {
  void operator()(DIR* directory) const { closedir(directory); }
};

}  // namespace

LinuxFileManager::FileMTimePredicate::FileMTimePredicate(
    unsigned long lower_age_seconds, unsigned long upper_age_seconds)
    : lower_age_seconds_(lower_age_seconds),
      upper_age_seconds_(upper_age_seconds),
      reference_time_(std::time(nullptr)) {}

bool LinuxFileManager::FileMTimePredicate::test(char const*,
                                                struct stat& info) {
  long age_seconds = 0;
  if (__builtin_sub_overflow(reference_time_, info.st_mtime, &age_seconds)) {
    return false;  // further from now than a bound can say
  }
  return static_cast<long>(lower_age_seconds_) < age_seconds &&
         age_seconds < static_cast<long>(upper_age_seconds_);
}

const SimpleString& LinuxFileManager::GetPathSeparator() const {
  static const SimpleString separator(kPathSeparator);
  return separator;
}

const SimpleString& LinuxFileManager::GetUserSettingsBaseDirectory() const {
  static const SimpleString directory(
      ExpandHomeDirectory(kUserSettingsBaseDir));
  return directory;
}

const SimpleString& LinuxFileManager::GetAssetCacheDirectory() const {
  static const SimpleString directory(ExpandHomeDirectory(kAssetCacheDir));
  return directory;
}

const SimpleString& LinuxFileManager::GetDRMLicenseDataDirectory() const {
  static const SimpleString directory(ExpandHomeDirectory(kDRMLicenseDataDir));
  return directory;
}

bool LinuxFileManager::CreateDirectoryAtPath(const SimpleString& path,
                                             const SimpleString& name) {
  SimpleString chain =
      SimpleString::Joined({path.c_str(), kPathSeparator, name.c_str()});
  if (!chain.HasText() || path.IsEmpty()) return false;
  // Most of the time everything is there, which one call tells.
  if (access(chain.c_str(), F_OK) == 0) return true;
  if (!chain.AppendString(kPathSeparator)) return false;
  std::unique_ptr<char[]> prefix(SimpleString::CopyString(chain.c_str()));
  if (!prefix) return false;
  for (char* slash = std::strchr(prefix.get() + 1, '/'); slash;
       slash = std::strchr(slash + 1, '/')) {
    *slash = '\0';
    if (!MakeDirectory(prefix.get())) return false;
    *slash = '/';
  }
  return true;
}

std::uint64_t LinuxFileManager::SizeOfFileAtPath(
    const SimpleString& path) const {
  return path.IsEmpty() ? 0 : TreeSize().Measure(path.c_str());
}

bool LinuxFileManager::RemoveFilesRecursively(const SimpleString& path,
                                              FilePredicate* predicate) {
  if (!path.HasText()) return false;
  // What lies below is of others' making, the links included.
  return path.IsEmpty() ||
         TreeRemoval(predicate).Remove(path, GetUserSettingsBaseDirectory());
}

bool LinuxFileManager::RemoveFileAtPath(const SimpleString& path) {
  return RemoveFilesRecursively(path, nullptr);
}

bool LinuxFileManager::RemoveFilesInDirectoryInDateRange(
    const SimpleString& path, unsigned long lower_age_seconds,
    unsigned long upper_age_seconds) {
  FileMTimePredicate predicate(lower_age_seconds, upper_age_seconds);
  return RemoveFilesRecursively(path, &predicate);
}

SortableStringVector* LinuxFileManager::CreateNewListOfDirectoryContents(
    const SimpleString& path) const {
  std::unique_ptr<SortableStringVector> names(new (std::nothrow)
                                                  SortableStringVector);
  if (!names || path.IsEmpty()) return names.release();
  const std::unique_ptr<DIR, CloseDirectory> directory(
      OpenDirectory(path.c_str()));
  if (!directory) return names.release();
  while (const dirent* entry = readdir(directory.get())) {
    // Compared without a copy: for want of memory ".." must not be listed.
    const std::string_view listed = entry->d_name;
    if (listed == "." || listed == "..") continue;
    const SimpleString name = entry->d_name;
    if (!names->addElement(&name)) return nullptr;
  }
  names->Sort();
  return names.release();
}
