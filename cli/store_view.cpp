#include "cli/store_view.h"

#include <cstring>
#include <set>
#include <utility>

#include "cli/error_messages.h"
#include "store/default_settings.h"
#include "store/setting_keys.h"
#include "store/stored_data.h"
#include "store/stored_sites.h"

using SASM::FindSetting;
using SASM::SDIVector;
using SASM::SettingsDictionary;
using SASM::SimpleString;

namespace {

// The names of the elements of an array; none if there is no array.
std::vector<std::string> NamesIn(const char* key,
                                 const SettingsDictionary& settings) {
  std::vector<std::string> names;
  const SDIVector* array = SASM::ArrayOrNull(FindSetting(key, settings));
  for (unsigned int i = 0; array && i < array->count; ++i) {
    names.emplace_back(array->At(i)->name.c_str());
  }
  return names;
}

}  // namespace

StoreView::StoreView() : layout_(&files_) {
  if (layout_.IsOnDisk()) {
    SettingsOnDisk master =
        ReadSettings(layout_.SettingsFileOf(SASM::MasterDomainName()));
    problem_ = std::move(master.problem);
    master_ = std::move(master.dictionary);
  }
  if (!master_) master_ = std::make_unique<SettingsDictionary>();
  SASM::InsertMissingDefaults(SASM::DefaultMasterSettings(), *master_,
                              master_.get());
  const SDIVector* listed =
      SASM::ArrayOrNull(FindSetting(SASM::kDomains, *master_));
  for (unsigned int i = 0; listed && i < listed->count; ++i) {
    listed_.insert(listed->At(i)->name.c_str());
  }
}

bool StoreView::ReportProblem() const {
  if (problem_.Exists()) {
    PrintProblem(layout_.SettingsFileOf(SASM::MasterDomainName()).c_str(),
                 problem_);
  }
  return IsIntact();
}

bool StoreView::ReportUnknownStorage() const {
  const int error = layout_.ListingError();
  if (error != 0) {
    PrintError(layout_.LocalStorageRoot().c_str(), std::strerror(error));
  }
  return error == 0;
}

PermissionSettings StoreView::Global() const {
  PermissionSettings global;
  for (const Permission& permission : kPermissions) {
    global.states[permission.kind] = GlobalState(permission, master_.get());
  }
  global.storage_limit_kb = GlobalLimitKb(master_.get());
  return global;
}

std::vector<std::string> StoreView::TrustedLocations() const {
  return NamesIn(SASM::kTrustedPaths, *master_);
}

std::vector<std::string> StoreView::ListedSites() const {
  return NamesIn(SASM::kDomains, *master_);
}

bool StoreView::HasSettings(const SimpleString& site) const {
  return SASM::SettingsFileSearch(layout_).HasFile(site);
}

std::vector<std::string> StoreView::PossibleSites() const {
  std::vector<std::string> sites = ListedSites();
  for (std::string& site : SASM::SitesWithDirectory(layout_)) {
    if (!IsListed(site)) sites.push_back(std::move(site));
  }
  return sites;
}

std::vector<std::string> StoreView::KnownSites() const {
  std::set<std::string> sites;
  for (const std::string& site : PossibleSites()) {
    if (IsKnown(site.c_str())) sites.insert(site);
  }
  return {sites.begin(), sites.end()};
}

std::optional<SiteSettings> StoreView::Read(const std::string& site) const {
  const SimpleString name = site.c_str();
  const SimpleString file = layout_.SettingsFileOf(name);
  const SettingsOnDisk on_disk = ReadSettings(file);
  if (!on_disk.IsIntact() && !HasSettings(name)) return std::nullopt;
  if (on_disk.problem.Exists()) PrintProblem(file.c_str(), on_disk.problem);
  SiteSettings settings;
  settings.name = site;
  settings.is_listed = IsListed(site);
  settings.is_intact = on_disk.IsIntact();
  for (const Permission& permission : kPermissions) {
    settings.permissions.states[permission.kind] =
        EffectiveState(permission, master_.get(), on_disk.dictionary.get());
  }
  settings.permissions.storage_limit_kb =
      StoredLimitKb(on_disk.dictionary.get());
  settings.storage_used_bytes = SASM::LocalStorageSize(name, layout_, files_);
  return settings;
}
