#include <algorithm>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstring>
#include <memory>
#include <string_view>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/old_files.h"
#include "cli/site_removal.h"
#include "platform/drm_license_manager.h"
#include "platform/linux_file_manager.h"
#include "strings/printable_text.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

constexpr char kAllSitesSubject[] = "all sites";
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

class ClearCommand {
 public:
  explicit ClearCommand(const CommandLine& line)
      : line_(line), store_(files_), kept_(line.ArgumentsOf(kKeep)) {}

  // Each of these is what one word stands for.
  void ClearStorage();
  void ClearSettings();
  void ClearCache();
  void ClearLicences();

  // False when the option is wrong, which is reported.
  bool ParseOptions();
  [[nodiscard]] const StoreView& Store() const { return store_; }
  ExitStatus Finish() { return Worse(changes_.Finish(line_), status_); }

 private:
  void AddDirectory(const SimpleString& path, const char* line,
                    bool (*remove)(SettingsManager&));
  void ClearStorageExceptKept();
  void ClearOldStorage();
  void ClearAllSettings();
  // Those that are not kept. Reports a directory that cannot be read.
  [[nodiscard]] std::vector<std::string> SitesWithData();
  [[nodiscard]] bool HasOldFile(const SimpleString& directory) const;
  [[nodiscard]] bool IsKept(const std::string& site) const;

  const CommandLine& line_;
  const LinuxFileManager files_;
  const StoreView store_;
  const std::vector<const char*> kept_;
  unsigned long age_seconds_ = 0;
  Changes changes_;
  ExitStatus status_ = kSuccess;
};

struct Target {
  const char* word;
  void (ClearCommand::*clear)();
};
constexpr Target kTargets[] = {
    {"storage", &ClearCommand::ClearStorage},
    {"settings", &ClearCommand::ClearSettings},
    {"cache", &ClearCommand::ClearCache},
    {"licences", &ClearCommand::ClearLicences},
};

// False, with an error number, when the directory cannot be read.
bool ListDirectory(const SimpleString& directory,
                   std::vector<std::string>* names) {
  const std::unique_ptr<SASM::StringVector> list(
      LinuxFileManager().CreateNewListOfDirectoryContents(directory));
  for (unsigned int i = 0; i < list->count; ++i) {
    names->emplace_back(list->TextAt(i));
  }
  return errno == 0 || errno == ENOENT;
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

bool ClearCommand::ParseOptions() {
  for (const char* age : line_.ArgumentsOf(kOlderThan)) {
    if (ParseAge(age, &age_seconds_)) continue;
    PrintUsageError("no such age: ", age);
    return false;
  }
  for (const char* word : line_.words) {
    if (!std::ranges::count(kTargets, std::string_view(word), &Target::word)) {
      PrintUsageError("nothing to clear is called: ", word);
      return false;
    }
    if (line_.Has(kOlderThan) && word != std::string_view("storage")) {
      PrintUsageError("--older-than is for storage only, not for: ", word);
      return false;
    }
  }
  return true;
}

bool ClearCommand::IsKept(const std::string& site) const {
  return std::ranges::any_of(kept_, [&](const std::string& kept) {
    if (kept.starts_with('.') && site.ends_with(kept)) return true;
    const std::string name = kept.substr(kept.starts_with('.') ? 1 : 0);
    // What is kept may be below what is not.
    return site == name || name.starts_with(site + "/");
  });
}

void ClearCommand::AddDirectory(const SimpleString& path, const char* line,
                                bool (*remove)(SettingsManager&)) {
  if (!IsThere(path)) return;
  // A directory that cannot be opened is left, without a failure.
  changes_.Add({path.c_str(), {line}, [path, remove](SettingsManager& manager) {
                  return remove(manager) && !IsThere(path);
                }});
}

void ClearCommand::ClearStorage() {
  if (line_.Has(kOlderThan)) return ClearOldStorage();
  if (!kept_.empty()) return ClearStorageExceptKept();
  const SimpleString root = store_.Layout().LocalStorageRoot();
  if (IsEmpty(root)) return;
  changes_.Add({kAllSitesSubject,
                {"all sites: stored data deleted"},
                [root](SettingsManager& manager) {
                  return manager.RemoveAllSettingsAndOrLocalStorage(
                             /*remove_settings=*/false,
                             /*remove_storage=*/true) &&
                         IsEmpty(root);
                }});
}

std::vector<std::string> ClearCommand::SitesWithData() {
  const SimpleString directory = store_.Layout().LocalStorageDirectory();
  std::vector<std::string> sites;
  const int error = store_.Layout().ListingError();
  if (error != 0 || !ListDirectory(directory, &sites)) {
    PrintError(directory.c_str(), std::strerror(error ? error : errno));
    status_ = kFailure;
  }
  std::erase_if(sites, [this](const std::string& site) {
    return !SASM::IsSiteName(site.c_str()) || IsKept(site);
  });
  return sites;
}

void ClearCommand::ClearStorageExceptKept() {
  for (const std::string& site : SitesWithData()) {
    changes_.Add(DeletionOfData(site.c_str(), store_));
  }
}

bool ClearCommand::HasOldFile(const SimpleString& directory) const {
  const SimpleString& base = store_.Layout().BaseDirectory();
  const std::string path = directory.c_str();
  const std::string way =
      path.substr(std::string_view(base.c_str()).size() + 1);
  return HasFileOlderThan(base.c_str(), way.c_str(), age_seconds_);
}

void ClearCommand::ClearOldStorage() {
  const SASM::StoreLayout& layout = store_.Layout();
  const auto add = [this](const std::string& subject,
                          const SimpleString& directory, auto remove) {
    if (!HasOldFile(directory)) return;
    changes_.Add({subject,
                  {Printable(subject) + ": stored data older than " +
                   line_.ArgumentsOf(kOlderThan).back() + " deleted"},
                  remove});
  };
  if (kept_.empty()) {
    return add(kAllSitesSubject, layout.LocalStorageDirectory(),
               [age = age_seconds_](SettingsManager& manager) {
                 return manager.RemoveAllSettingsAndOrLocalStorageForTimeRange(
                     /*remove_settings=*/false, /*remove_storage=*/true, age,
                     kOldest);
               });
  }
  for (const std::string& site : SitesWithData()) {
    const SimpleString directory = layout.LocalStorageOf(site.c_str());
    add(site, directory, [directory, age = age_seconds_](SettingsManager&) {
      return LinuxFileManager().RemoveFilesInDirectoryInDateRange(directory,
                                                                  age, kOldest);
    });
  }
}

void ClearCommand::ClearAllSettings() {
  const SimpleString directory = store_.Layout().SettingsDirectory();
  if (HoldsNoSites(directory) && store_.ListedSites().empty()) return;
  changes_.Add({kAllSitesSubject,
                {"all sites: settings removed"},
                [directory](SettingsManager& manager) {
                  return manager.RemoveAllSettingsAndOrLocalStorage(
                             /*remove_settings=*/true,
                             /*remove_storage=*/false) &&
                         HoldsNoSites(directory) &&
                         // The removal leaves out whether the global
                         // settings could be written again.
                         manager.SynchronizeSettingsForDomain(
                             SettingsManager::MasterDomain());
                }});
}

void ClearCommand::ClearSettings() {
  if (kept_.empty()) return ClearAllSettings();
  for (const std::string& site : store_.KnownSites()) {
    if (IsKept(site) || !SASM::IsSiteName(site.c_str())) continue;
    changes_.Add(RemovalOfSite(site.c_str(), Data::kKept, store_));
  }
}

void ClearCommand::ClearCache() {
  AddDirectory(
      files_.GetAssetCacheDirectory(), "asset cache: deleted",
      [](SettingsManager& manager) { return manager.RemoveAssetCache(); });
}

void ClearCommand::ClearLicences() {
  AddDirectory(files_.GetDRMLicenseDataDirectory(), "licences: deleted",
               [](SettingsManager&) {
                 LinuxFileManager files;
                 return SASM::DRMLicenseManager(&files).Reset();
               });
}

}  // namespace

ExitStatus RunClear(const CommandLine& line) {
  ClearCommand command(line);
  if (!command.ParseOptions()) return kUsageError;
  if (!MayChange(command.Store())) return kFailure;
  for (const Target& target : kTargets) {
    if (std::ranges::count(line.words, std::string_view(target.word)) == 0) {
      continue;
    }
    (command.*target.clear)();
  }
  return command.Finish();
}
