#include "cli/findings.h"

#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <unordered_set>

#include "cli/directory_search.h"
#include "platform/home_directory.h"
#include "store/stored_sites.h"
#include "strings/printable_text.h"

using SASM::SimpleString;

namespace {

using About = Finding::About;

class FaultSearch {
 public:
  explicit FaultSearch(const StoreView& store)
      : store_(store), layout_(store.Layout()) {}

  std::vector<Finding> Run() {
    if (!layout_.IsOnDisk()) return {};
    AddDamage(layout_.SettingsFileOf(SASM::MasterDomainName()),
              store_.MasterProblem());
    LookAtList();
    for (const std::string& site : SASM::SitesWithDirectory(layout_)) {
      LookAtSettings(site);
    }
    LookAtData();
    for (const SimpleString& directory :
         {layout_.BaseDirectory(), store_.Files().GetAssetCacheDirectory(),
          store_.Files().GetDRMLicenseDataDirectory()}) {
      LookAtOwners(directory.c_str());
    }
    return std::move(findings_);
  }

 private:
  void AddSite(const char* kind, const std::string& site, std::string detail) {
    findings_.push_back({kind, About::kSite, site, std::move(detail)});
  }
  void AddPath(const char* kind, const std::string& path, std::string detail) {
    findings_.push_back({kind, About::kPath, path, std::move(detail)});
  }

  void AddDamage(const SimpleString& file, const FileProblem& problem) {
    if (!problem.Exists()) return;
    AddPath(kDamagedFile, file.c_str(), problem.Message());
  }

  bool HasFile(const std::string& site) const {
    return store_.HasSettings(site.c_str()) ||
           !ReadSettings(layout_.SettingsFileOf(site.c_str())).is_missing;
  }

  void LookAtList() {
    std::unordered_map<std::string, int> counts;
    for (const std::string& site : store_.ListedSites()) {
      const int count = ++counts[site];
      if (count == 2) AddSite(kDuplicateName, site, "is listed twice");
      if (count > 1) continue;
      LookAtName(site);
      if (!HasFile(site)) {
        AddSite(kMissingFile, site, "is listed and has no settings file");
      }
    }
  }

  void LookAtSettings(const std::string& site) {
    const SimpleString file = layout_.SettingsFileOf(site.c_str());
    const SettingsOnDisk on_disk = ReadSettings(file);
    AddDamage(file, on_disk.problem);
    if (on_disk.is_missing || store_.IsListed(site)) return;
    LookAtName(site);
    if (on_disk.problem.Exists()) return;
    AddSite(kUnlistedSettings, site, "has settings and is not listed");
  }

  void LookAtName(const std::string& site) {
    if (const char* fault = FaultOfName(site)) {
      AddSite(kImpossibleName, site, fault);
    }
  }

  // Null for a name that a browser can ask for, which is less than the store
  // takes.
  static const char* FaultOfName(const std::string& site) {
    if (site.find("://") != site.npos || site.starts_with("http:") ||
        site.starts_with("https:")) {
      return "begins with a scheme and matches no site";
    }
    if (!SASM::IsSiteName(site.c_str())) return "can be no site";
    if (site.find_first_of(" \t\n\r\f\v") != site.npos) {
      return "has a blank and matches no site";
    }
    // Visible characters stay as they are, except for the backslash.
    std::string visible = Printable(site);
    for (std::size_t at = 0; (at = visible.find("\\\\", at)) != visible.npos;) {
      visible.erase(at++, 1);
    }
    if (visible != site) return "has invisible characters and matches no site";
    const bool has_capital =
        std::ranges::any_of(site, [](char c) { return c >= 'A' && c <= 'Z'; });
    return has_capital ? "has capital letters and matches no site" : nullptr;
  }

  void LookAtData() {
    const SimpleString root = layout_.LocalStorageRoot();
    std::vector<std::string> directories;
    std::vector<std::string> sites;
    // Without a listing there is nothing to compare.
    (void)ListDirectory(root, &directories);
    (void)ListDirectory(layout_.LocalStorageDirectory(), &sites);
    for (std::size_t i = 1; i < directories.size(); ++i) {
      AddPath(kFurtherDirectory,
              layout_.Join(root, directories[i].c_str()).c_str(),
              "is not the first one, the data of sites is elsewhere");
    }
    if (directories.empty()) return;
    // The data of "a/b" is below "a".
    std::unordered_set<std::string> listed;
    for (const std::string& site : store_.ListedSites()) {
      listed.insert(site.substr(0, site.find('/')));
    }
    for (const std::string& site : sites) {
      if (listed.contains(site)) continue;
      AddSite(kUnlistedData, site, "has stored data and is not listed");
    }
  }

  void LookAtOwners(const std::string& directory) {
    struct stat home;
    if (directory.empty()) return;
    if (stat(ExpandHomeDirectory("~").c_str(), &home) != 0) return;
    for (const OddEntry& entry : FindOddEntries(directory, home.st_uid)) {
      if (entry.oddity == OddEntry::Oddity::kLink) {
        AddPath(kLinkedDirectory, entry.path,
                "is a link in the place of a directory");
        continue;
      }
      AddPath(
          kForeignOwner, entry.path,
          "belongs to the user with the number " + std::to_string(entry.owner));
    }
  }

  const StoreView& store_;
  const SASM::StoreLayout& layout_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> FindFaults(const StoreView& store) {
  return FaultSearch(store).Run();
}
