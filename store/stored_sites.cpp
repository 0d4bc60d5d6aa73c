#include "store/stored_sites.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <string_view>

#include "platform/directory_walk.h"
#include "platform/open_below.h"

namespace SASM {
namespace {

// The path of a walk's start, as a directory relative to itself.
constexpr char kStart[] = ".";
// What the path of every site's directory then begins with.
constexpr std::string_view kSitesBegin = "./#";

class SiteSearch : private DirectoryWalk {
 public:
  SiteSearch() : DirectoryWalk(kThereAndBack) {}

  std::vector<std::string> Run(const StoreLayout& layout) {
    const FileDescriptor settings = OpenBelow(
        layout.BaseDirectory().c_str(), layout.SettingsDirectory().c_str());
    if (settings.IsOpen()) Walk(settings.Get(), kStart);
    std::ranges::sort(sites_);
    return std::move(sites_);
  }

 private:
  bool VisitEntry(int directory, const char* name, unsigned char,
                  FileIdentity*) override {
    const std::string path = PathOf(name);
    struct stat info;
    if (!path.starts_with(kSitesBegin) ||
        fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISDIR(info.st_mode)) {
      return false;
    }
    const SimpleString site = path.c_str() + kSitesBegin.size();
    if (IsSiteName(site)) sites_.emplace_back(site.c_str());
    // Only the directory itself and its parent: few sites have others below.
    constexpr nlink_t kLinksWithoutSubdirectories = 2;
    return info.st_nlink != kLinksWithoutSubdirectories;
  }

  std::vector<std::string> sites_;
};

}  // namespace

std::vector<std::string> SitesWithDirectory(const StoreLayout& layout) {
  if (!layout.IsOnDisk()) return {};
  return SiteSearch().Run(layout);
}

}  // namespace SASM
