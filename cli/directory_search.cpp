#include "cli/directory_search.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>
#include <memory>

#include "platform/directory_walk.h"
#include "platform/linux_file_manager.h"
#include "platform/open_below.h"

using SASM::SimpleString;

namespace {

class OldFileSearch : private DirectoryWalk {
 public:
  explicit OldFileSearch(unsigned long age_seconds)
      : DirectoryWalk(kThere), bound_(static_cast<std::time_t>(age_seconds)) {}

  bool Run(int directory) {
    Walk(directory, ".");
    return found_;
  }

 private:
  bool VisitEntry(int directory, const char* name, unsigned char,
                  FileIdentity*) override {
    struct stat info;
    if (found_ || fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
      return false;
    }
    if (S_ISDIR(info.st_mode)) return true;
    std::time_t age = 0;
    found_ = !__builtin_sub_overflow(now_, info.st_mtime, &age) && age > bound_;
    return false;
  }

  const std::time_t bound_;
  const std::time_t now_ = std::time(nullptr);
  bool found_ = false;
};

class OddEntrySearch : private DirectoryWalk {
 public:
  OddEntrySearch(const std::string& directory, uid_t owner)
      : DirectoryWalk(kThereAndBack), directory_(directory), owner_(owner) {}

  std::vector<OddEntry> Run() {
    struct stat info;
    const FileDescriptor start = OpenBelow(directory_, directory_.c_str());
    if (start.IsOpen() && fstat(start.Get(), &info) == 0) {
      if (info.st_uid != owner_) AddOwner(directory_, info);
      Walk(start.Get(), ".");
    }
    return std::move(found_);
  }

 private:
  bool VisitEntry(int directory, const char* name, unsigned char,
                  FileIdentity*) override {
    struct stat info;
    if (fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0) return false;
    if (info.st_uid != owner_) AddOwner(FullPathOf(name), info);
    if (S_ISLNK(info.st_mode) && LeadsToDirectory(directory, name)) {
      found_.push_back(
          {FullPathOf(name), OddEntry::Oddity::kLink, info.st_uid});
    }
    return S_ISDIR(info.st_mode);
  }

  // In the place of a site's directory a link that leads nowhere counts too.
  static bool LeadsToDirectory(int directory, const char* name) {
    struct stat info;
    if (fstatat(directory, name, &info, 0) != 0) return *name == '#';
    return S_ISDIR(info.st_mode);
  }

  void AddOwner(const std::string& path, const struct stat& info) {
    found_.push_back({path, OddEntry::Oddity::kOtherOwner, info.st_uid});
  }

  // A walk's own paths begin with "./".
  std::string FullPathOf(const char* name) const {
    return directory_ + PathOf(name).substr(1);
  }

  const std::string& directory_;
  const uid_t owner_;
  std::vector<OddEntry> found_;
};

}  // namespace

bool IsThere(const SimpleString& path) {
  struct stat info;
  if (lstat(path.c_str(), &info) == 0) return true;
  return errno != ENOENT && errno != ENOTDIR;
}

bool ListDirectory(const SimpleString& directory,
                   std::vector<std::string>* names) {
  const std::unique_ptr<SASM::StringVector> list(
      LinuxFileManager().CreateNewListOfDirectoryContents(directory));
  const int error = errno;
  for (unsigned int i = 0; i < list->count; ++i) {
    names->emplace_back(list->TextAt(i));
  }
  errno = error;
  return error == 0 || error == ENOENT;
}

bool HasFileOlderThan(const char* trusted, const char* path,
                      unsigned long age_seconds) {
  const FileDescriptor directory = OpenBelow(trusted, path);
  if (directory.IsOpen()) {
    return OldFileSearch(age_seconds).Run(directory.Get());
  }
  return errno != ENOENT && errno != ENOTDIR;
}

std::vector<OddEntry> FindOddEntries(const std::string& directory,
                                     uid_t owner) {
  return OddEntrySearch(directory, owner).Run();
}
