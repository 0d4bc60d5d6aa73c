// The store as the panel would show it, without changing any file.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "cli/settings_source.h"
#include "model/permissions.h"
#include "platform/linux_file_manager.h"
#include "store/store_layout.h"

// The permissions of a site, or those of all sites.
struct PermissionSettings {
  // By PermissionKind.
  std::array<PermissionState, kPermissionCount> states = {};
  double storage_limit_kb = 0;
};

struct SiteSettings {
  std::string name;
  bool is_listed = false;
  PermissionSettings permissions;
  std::uint64_t storage_used_bytes = 0;
  bool is_intact = false;
};

// Reads the master settings once, and the settings of a site on request.
// Defaults that the panel would write to disk are added in memory.
class StoreView {
 public:
  StoreView();

  [[nodiscard]] const SASM::FileManager& Files() const { return files_; }
  [[nodiscard]] const SASM::StoreLayout& Layout() const { return layout_; }

  // What is wrong with the file of the master settings. A user without a home
  // directory has none, which the file manager has reported.
  [[nodiscard]] const FileProblem& MasterProblem() const { return problem_; }
  [[nodiscard]] bool IsIntact() const {
    return layout_.IsOnDisk() && !problem_.Exists();
  }
  // Prints what is wrong with the file. True when nothing is.
  [[nodiscard]] bool ReportProblem() const;
  // Prints why it is not known where sites store data. True when it is.
  [[nodiscard]] bool ReportUnknownStorage() const;

  [[nodiscard]] const SASM::SettingsDictionary& Master() const {
    return *master_;
  }
  [[nodiscard]] PermissionSettings Global() const;
  // As stored, some perhaps more than once.
  [[nodiscard]] std::vector<std::string> TrustedLocations() const;
  [[nodiscard]] std::vector<std::string> ListedSites() const;

  [[nodiscard]] bool IsListed(std::string_view site) const {
    return listed_.contains(site);
  }
  // More than 1 for a name that is listed again.
  [[nodiscard]] std::size_t CountInList(std::string_view site) const {
    return listed_.count(site);
  }
  // The panel shows only listed sites that have settings.
  [[nodiscard]] bool HasSettings(const SASM::SimpleString& site) const;
  [[nodiscard]] bool IsKnown(const SASM::SimpleString& site) const {
    return IsListed(site.c_str()) || HasSettings(site);
  }
  // The sites on the list, in its order, then the others that have a directory,
  // by name. Some may have no settings.
  [[nodiscard]] std::vector<std::string> PossibleSites() const;
  // The possible sites that are known. By name, each once.
  [[nodiscard]] std::vector<std::string> KnownSites() const;
  // None for a site without settings. Prints what is wrong with the file.
  [[nodiscard]] std::optional<SiteSettings> Read(const std::string& site) const;

 private:
  const LinuxFileManager files_;
  SASM::StoreLayout layout_;
  std::unique_ptr<SASM::SettingsDictionary> master_;
  FileProblem problem_;
  // Texts of the master settings.
  std::unordered_multiset<std::string_view> listed_;
};
