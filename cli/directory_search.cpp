#include "cli/owner_search.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "platform/directory_walk.h"
#include "platform/open_below.h"

namespace {

class OddEntrySearch : private DirectoryWalk {
 public:
  OddEntrySearch(const std::string& directory, uid_t owner)
      : DirectoryWalk(kThereAndBack), directory_(directory), owner_(owner) {}

  std::vector<OddEntry> Run() {
    struct stat info;
    const FileDescriptor start = OpenBelow(directory_.c_str(), "");
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

std::vector<OddEntry> FindOddEntries(const std::string& directory,
                                     uid_t owner) {
  return OddEntrySearch(directory, owner).Run();
}
