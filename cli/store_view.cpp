#include "cli/store_view.h"

#include <algorithm>
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

StoreView::StoreView(const SASM::FileManager& files)
    : files_(files), layout_(&files) {
  if (layout_.IsOnDisk()) {
    SettingsOnDisk master =
        ReadSettings(layout_.SettingsFileOf(SASM::MasterDomainName()));
    problem_ = std::move(master.problem);
    master_ = std::move(master.dictionary);
  }
  if (!master_) master_ = std::make_unique<SettingsDictionary>();
  SASM::InsertMissingDefaults(SASM::DefaultMasterSettings(), *master_,
                              master_.get());
  const SDIVector* listed = ListedSites();
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

PermissionSettings StoreView::Global() const {
  PermissionSettings global;
  for (const Permission& permission : kPermissions) {
    global.states[permission.kind] = GlobalState(permission, master_.get());
  }
  global.storage_limit_kb = GlobalLimitKb(master_.get());
  return global;
}

const SDIVector* StoreView::TrustedLocations() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kTrustedPaths, *master_));
}

const SDIVector* StoreView::ListedSites() const {
  return SASM::ArrayOrNull(FindSetting(SASM::kDomains, *master_));
}

bool StoreView::HasSettings(const SimpleString& site) const {
  return SASM::HasSettingsFile(site, layout_);
}

std::vector<std::string> StoreView::SitesWithSettings() const {
  std::vector<std::string> sites;
  const SDIVector* listed = ListedSites();
  for (unsigned int i = 0; listed && i < listed->count; ++i) {
    const SimpleString& name = listed->At(i)->name;
    if (HasSettings(name)) sites.emplace_back(name.c_str());
  }
  for (std::string& site : SASM::SitesWithSettingsFile(layout_)) {
    if (IsListed(site) || !HasSettings(site.c_str())) continue;
    sites.push_back(std::move(site));
  }
  return sites;
}

std::vector<std::string> StoreView::KnownSites() const {
  std::vector<std::string> sites = SitesWithSettings();
  sites.insert(sites.end(), listed_.begin(), listed_.end());
  std::ranges::sort(sites);
  sites.erase(std::unique(sites.begin(), sites.end()), sites.end());
  return sites;
}

SiteSettings StoreView::Read(const std::string& site) const {
  const SimpleString name = site.c_str();
  const SimpleString file = layout_.SettingsFileOf(name);
  const SettingsOnDisk on_disk = ReadSettings(file);
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
