#include "cli/old_files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <ctime>

#include "platform/directory_walk.h"
#include "platform/open_below.h"

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

}  // namespace

bool HasFileOlderThan(const char* trusted, const char* way,
                      unsigned long age_seconds) {
  const FileDescriptor directory = OpenBelow(trusted, way);
  if (directory.IsOpen()) {
    return OldFileSearch(age_seconds).Run(directory.Get());
  }
  return errno != ENOENT && errno != ENOTDIR;
}
