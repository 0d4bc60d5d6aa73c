#include "platform/linux_file_manager.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <memory>
#include <string>

#include "platform/directory_stream.h"
#include "platform/home_directory.h"
#include "platform/open_below.h"
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

// A path without the "/" at its end, which behind a link would mean what the
// link leads to.
std::string_view WithoutFinalSlashes(std::string_view path) {
  const std::size_t last = path.find_last_not_of('/');
  return path.substr(0, last == path.npos ? 1 : last + 1);
}

// A path as the directory that holds the entry, and the entry's name.
struct SplitPath {
  explicit SplitPath(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    name = path.substr(slash == path.npos ? 0 : slash + 1);
    directory = slash == path.npos
                    ? "."
                    : path.substr(0, std::max(slash, std::size_t{1}));
  }
  std::string_view directory;
  std::string name;
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

FileDescriptor LinuxFileManager::OpenTrusted(std::string_view path) const {
  const std::string whole(path);
  for (const SimpleString* trusted :
       {&GetUserSettingsBaseDirectory(), &GetAssetCacheDirectory(),
        &GetDRMLicenseDataDirectory()}) {
    const std::string_view top = trusted->c_str();
    if (!top.empty() && path.starts_with(top) &&
        path.substr(top.size()).starts_with('/')) {
      return OpenBelow(top, whole.c_str());
    }
  }
  return OpenBelow(whole, whole.c_str());
}

bool LinuxFileManager::CreateDirectoryAtPath(const SimpleString& path,
                                             const SimpleString& name) {
  if (path.IsEmpty()) return false;
  const SimpleString chain =
      SimpleString::Joined({path.c_str(), kPathSeparator, name.c_str()});
  // Common case: the directory exists.
  if (OpenTrusted(chain.c_str()).IsOpen() || MakeDirectory(chain.c_str())) {
    return true;
  }
  std::perror("CreateDirectoryAtPath");
  return false;
}

bool LinuxFileManager::MakeDirectory(std::string_view path) const {
  const SplitPath split(WithoutFinalSlashes(path));
  FileDescriptor holder = OpenTrusted(split.directory);
  if (!holder.IsOpen() && errno == ENOENT && MakeDirectory(split.directory)) {
    holder = OpenTrusted(split.directory);
  }
  return holder.IsOpen() &&
         (mkdirat(holder.Get(), split.name.c_str(), kDirectoryMode) == 0 ||
          errno == EEXIST);
}

std::uint64_t LinuxFileManager::SizeOfFileAtPath(
    const SimpleString& path) const {
  if (path.IsEmpty()) return 0;
  TreeSize* shared = SharedMeasurement::Current();
  return shared ? shared->Measure(path.c_str())
                : TreeSize().Measure(path.c_str());
}

bool LinuxFileManager::RemoveFilesRecursively(const SimpleString& path,
                                              FilePredicate* predicate) {
  if (path.IsEmpty()) return true;
  const SplitPath split(WithoutFinalSlashes(path.c_str()));
  errno = EINVAL;
  const FileDescriptor holder = IsSelfOrParent(split.name)
                                    ? FileDescriptor()
                                    : OpenTrusted(split.directory);
  if (holder.IsOpen()) {
    return TreeRemoval(predicate).Remove(holder.Get(), split.name.c_str(),
                                         std::string(split.directory));
  }
  if (errno == ENOENT) return true;
  std::perror(TreeRemoval::kLookStep);
  return false;
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
  auto names = std::make_unique<SortableStringVector>();
  if (path.IsEmpty()) return names.release();
  const FileDescriptor place = OpenTrusted(path.c_str());
  const DirectoryStream directory =
      place.IsOpen() ? OpenDirectoryStream(place.Get(), ".") : nullptr;
  if (!directory) return names.release();
  errno = 0;  // a first try of the opening may have failed
  while (const dirent* entry = readdir(directory.get())) {
    if (IsSelfOrParent(entry->d_name)) continue;
    const SimpleString name = entry->d_name;
    names->addElement(&name);
  }
  names->Sort();
  return names.release();
}
