#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <span>
#include <string_view>

#include "cli/commands.h"
#include "cli/directory_search.h"
#include "cli/error_messages.h"
#include "cli/settings_edit.h"
#include "cli/site_removal.h"
#include "platform/drm_license_manager.h"
#include "platform/linux_file_manager.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

constexpr unsigned long kOldest = LONG_MAX;

// "30d" or "12h".
bool ParseAge(std::string_view text, unsigned long* age_seconds) {
  constexpr unsigned long kHour = 3600;
  const char* end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, *age_seconds);
  if (error != std::errc() || rest + 1 != end) return false;
  const unsigned long unit = *rest == 'd' ? 24 * kHour : kHour;
  return (*rest == 'd' || *rest == 'h') &&
         !__builtin_mul_overflow(*age_seconds, unit, age_seconds) &&
         *age_seconds < kOldest;
}

bool IsEmpty(const SimpleString& directory) {
  std::vector<std::string> names;
  return ListDirectory(directory, &names) && names.empty();
}

bool HoldsNoSites(const SimpleString& settings_directory) {
  std::vector<std::string> names;
  return ListDirectory(settings_directory, &names) &&
         std::ranges::all_of(names, [](const std::string& name) {
           return name == SASM::StoreLayout::kSettingsFileName;
         });
}

class ClearCommand {
 public:
  explicit ClearCommand(const CommandLine& line)
      : line_(line), kept_(line.ArgumentsOf(kKeep)) {}

  // Refuses what is wrong.
  bool ParseOptions() {
    for (const char* age : line_.ArgumentsOf(kOlderThan)) {
      if (ParseAge(age, &age_seconds_)) continue;
      return Refuse("no such age: ", age);
    }
    for (const char* word : line_.words) {
      if (!std::ranges::count(Targets(), std::string_view(word),
                              &Target::word)) {
        return Refuse("nothing to clear is called: ", word);
      }
      if (line_.Has(kOlderThan) && word != std::string_view("storage")) {
        return Refuse("--older-than is for storage only, not for: ", word);
      }
    }
    return true;
  }

  ExitStatus Run() {
    if (!MayChange(store_)) return kFailure;
    for (const Target& target : Targets()) {
      const std::string_view word = target.word;
      if (std::ranges::count(line_.words, word) > 0) (this->*target.clear)();
    }
    return Worse(changes_.Finish(line_), status_);
  }

 private:
  struct Target {
    const char* word;
    void (ClearCommand::*clear)();
  };
  static std::span<const Target> Targets() {
    static constexpr Target kTargets[] = {
        {"storage", &ClearCommand::ClearStorage},
        {"settings", &ClearCommand::ClearSettings},
        {"cache", &ClearCommand::ClearCache},
        {"licences", &ClearCommand::ClearLicences},
    };
    return kTargets;
  }

  void AddForAllSites(const std::string& what, auto apply) {
    const std::string subject = SubjectOf(SASM::MasterDomainName());
    changes_.Add({subject, {Line(subject, what)}, apply});
  }

  void ClearStorage() {
    if (line_.Has(kOlderThan)) return ClearOldStorage();
    if (!kept_.empty()) return ClearStorageExceptKept();
    const SimpleString root = store_.Layout().LocalStorageRoot();
    if (IsEmpty(root)) return;
    AddForAllSites("stored data deleted", [root](SettingsManager& manager) {
      return manager.RemoveAllSettingsAndOrLocalStorage(
                 /*remove_settings=*/false,
                 /*remove_storage=*/true) &&
             IsEmpty(root);
    });
  }

  void ClearStorageExceptKept() {
    for (const std::string& site : SitesWithData()) {
      changes_.Add(DeletionOfData(site.c_str(), store_));
    }
  }

  void ClearOldStorage() {
    const SASM::StoreLayout& layout = store_.Layout();
    const std::string what = std::string("stored data older than ") +
                             line_.ArgumentsOf(kOlderThan).back() + " deleted";
    if (kept_.empty()) {
      if (!HasOldFile(layout.LocalStorageDirectory())) return;
      return AddForAllSites(what, [age =
                                       age_seconds_](SettingsManager& manager) {
        return manager.RemoveAllSettingsAndOrLocalStorageForTimeRange(
            /*remove_settings=*/false, /*remove_storage=*/true, age, kOldest);
      });
    }
    for (const std::string& site : SitesWithData()) {
      const SimpleString directory = layout.LocalStorageOf(site.c_str());
      if (!HasOldFile(directory)) continue;
      changes_.Add(
          {site,
           {Line(site, what)},
           [directory, age = age_seconds_](SettingsManager&) {
             return LinuxFileManager().RemoveFilesInDirectoryInDateRange(
                 directory, age, kOldest);
           }});
    }
  }

  void ClearSettings() {
    if (kept_.empty()) return ClearAllSettings();
    for (const std::string& site : store_.KnownSites()) {
      if (IsKept(site) || !SASM::IsSiteName(site.c_str())) continue;
      changes_.Add(RemovalOfSite(site.c_str(), Data::kKept, store_));
    }
  }

  void ClearAllSettings() {
    const SimpleString directory = store_.Layout().SettingsDirectory();
    if (HoldsNoSites(directory) && store_.ListedSites().empty()) return;
    AddForAllSites("settings removed", [directory](SettingsManager& manager) {
      return manager.RemoveAllSettingsAndOrLocalStorage(
                 /*remove_settings=*/true,
                 /*remove_storage=*/false) &&
             HoldsNoSites(directory) &&
             // The removal leaves out whether the global
             // settings could be written again.
             manager.SynchronizeSettingsForDomain(
                 SettingsManager::MasterDomain());
    });
  }

  void ClearCache() {
    AddDirectory(
        store_.Files().GetAssetCacheDirectory(), "asset cache: deleted",
        [](SettingsManager& manager) { return manager.RemoveAssetCache(); });
  }

  void ClearLicences() {
    AddDirectory(store_.Files().GetDRMLicenseDataDirectory(),
                 "licences: deleted", [](SettingsManager&) {
                   LinuxFileManager files;
                   return SASM::DRMLicenseManager(&files).Reset();
                 });
  }

  void AddDirectory(const SimpleString& path, const char* line,
                    bool (*remove)(SettingsManager&)) {
    if (!IsThere(path)) return;
    // A directory that cannot be opened is left, without a failure.
    changes_.Add(
        {path.c_str(), {line}, [path, remove](SettingsManager& manager) {
           return remove(manager) && !IsThere(path);
         }});
  }

  // Those that are not kept. Reports a directory that cannot be read.
  std::vector<std::string> SitesWithData() {
    const SimpleString directory = store_.Layout().LocalStorageDirectory();
    std::vector<std::string> sites;
    if (!store_.ReportUnknownStorage()) {
      status_ = kFailure;
    } else if (!ListDirectory(directory, &sites)) {
      PrintError(directory.c_str(), std::strerror(errno));
      status_ = kFailure;
    }
    std::erase_if(sites, [this](const std::string& site) {
      return !SASM::IsSiteName(site.c_str()) || IsKept(site);
    });
    return sites;
  }

  bool HasOldFile(const SimpleString& directory) const {
    return HasFileOlderThan(store_.Layout().BaseDirectory().c_str(),
                            directory.c_str(), age_seconds_);
  }

  bool IsKept(const std::string& site) const {
    return std::ranges::any_of(kept_, [&](const std::string& kept) {
      if (kept.starts_with('.') && site.ends_with(kept)) return true;
      const std::string name = kept.substr(kept.starts_with('.') ? 1 : 0);
      // What is kept may be below what is not.
      return site == name || name.starts_with(site + "/");
    });
  }

  const CommandLine& line_;
  const StoreView store_;
  const std::vector<const char*> kept_;
  unsigned long age_seconds_ = 0;
  Changes changes_;
  ExitStatus status_ = kSuccess;
};

}  // namespace

ExitStatus RunClear(const CommandLine& line) {
  ClearCommand command(line);
  return command.ParseOptions() ? command.Run() : kUsageError;
}
