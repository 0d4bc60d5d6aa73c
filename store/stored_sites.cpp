#include "store/stored_sites.h"

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
    const FileDescriptor settings =
        OpenBelow(layout.BaseDirectory().c_str(),
                  layout.WayToDirectoryOf(MasterDomainName()).c_str());
    if (settings.IsOpen()) Walk(settings.Get(), kStart);
    std::ranges::sort(sites_);
    return std::move(sites_);
  }

 private:
  bool VisitEntry(int, const char* name, unsigned char type,
                  FileIdentity*) override {
    const std::string path = PathOf(name);
    if (!path.starts_with(kSitesBegin)) return false;
    if (std::string_view(name) == StoreLayout::kSettingsFileName) {
      AddSite(path.substr(0, path.rfind('/')));
    }
    return type == DT_DIR || type == DT_UNKNOWN;
  }

  void AddSite(const std::string& directory) {
    if (!directory.starts_with(kSitesBegin)) return;  // "#settings.sol"
    const SimpleString site = directory.c_str() + kSitesBegin.size();
    if (IsSiteName(site)) sites_.emplace_back(site.c_str());
  }

  std::vector<std::string> sites_;
};

}  // namespace

std::vector<std::string> SitesWithSettingsFile(const StoreLayout& layout) {
  if (!layout.IsOnDisk()) return {};
  return SiteSearch().Run(layout);
}

}  // namespace SASM
