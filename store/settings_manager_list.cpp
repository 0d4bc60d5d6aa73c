// The list of domains.
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "store/list_changes.h"
#include "store/setting_keys.h"
#include "store/settings_file.h"
#include "store/stored_data.h"

namespace SASM {
namespace {

// False when there is none.
template <typename Names>
bool EraseOne(std::string_view name, Names* names) {
  const auto found = names->find(name);
  if (found == names->end()) return false;
  names->erase(found);
  return true;
}

}  // namespace

bool SettingsManager::ListChanges::IsListed(const SimpleString& site,
                                            const SDIVector& domains) {
  if (!names_) {
    names_.emplace(domains.count);
    for (unsigned int i = 0; i < domains.count; ++i) {
      names_->insert(domains.At(i)->name.c_str());
    }
    std::erase_if(removed_, [this](const std::string& name) {
      return !EraseOne(name, &*names_);
    });
  }
  return names_->contains(std::string_view(site.c_str()));
}

void SettingsManager::ListChanges::NoteAppended(const SimpleString& site) {
  is_changed_ = true;
  if (names_) names_->insert(site.c_str());
}

void SettingsManager::ListChanges::NoteRemoved(const SimpleString& site) {
  is_changed_ = true;
  if (names_ && !EraseOne(site.c_str(), &*names_)) return;
  removed_.insert(site.c_str());
}

void SettingsManager::ListChanges::Forget() {
  names_.reset();
  removed_.clear();
}

void SettingsManager::ListChanges::RemoveFrom(SDIVector* domains) {
  domains->removeElementsIf([this](const void* element) {
    const auto* domain = static_cast<const SettingDataItem*>(element);
    return EraseOne(domain->name.c_str(), &removed_);
  });
}

ListWriteGuard::ListWriteGuard(SettingsManager* manager)
    : manager_(manager), is_outermost_(!manager->mListChanges) {
  if (is_outermost_) {
    manager_->mListChanges = std::make_unique<SettingsManager::ListChanges>();
  }
}

bool ListWriteGuard::Finish() {
  if (!std::exchange(is_outermost_, false)) return true;
  const auto changes = std::move(manager_->mListChanges);
  if (changes->IsEmpty()) return true;
  changes->RemoveFrom(manager_->GetDomains());
  return manager_->StoreDomains();
}

SDIVector* SettingsManager::StoredDomains() const {
  return ArrayOrNull(FindSetting(kDomains, *LoadedDictionary(MasterDomain())));
}

bool SettingsManager::StoreEmptyDomains() {
  if (mListChanges) mListChanges->Forget();
  const SDIVector empty;
  SettingDataItem item(kDomains, kSettingsDataTypeArray, &empty);
  return SetSetting(&item, kDomains, MasterDomain());
}

SDIVector* SettingsManager::GetDomains() {
  (void)EnsureSettingsAreLoadedForDomain(MasterDomain());  // if unread so far
  if (!StoredDomains()) LoadMasterSettingsFromDisk();
  return StoredDomains();
}

void SettingsManager::VerifyDomainsList() {
  // Not GetDomains: it would load the settings that are being loaded.
  SDIVector* domains = StoredDomains();
  if (!domains || !mLayout.IsOnDisk()) return;
  const auto missing = ElementsWithoutFile(*domains);
  domains->removeElementsIf(
      [&](const void* element) { return missing.contains(element); });
}

std::unordered_set<const void*> SettingsManager::ElementsWithoutFile(
    const SDIVector& domains) const {
  const auto name_of = [](const void* element) -> const SimpleString& {
    return static_cast<const SettingDataItem*>(element)->name;
  };
  const SettingsFileSearch search(mLayout);
  const auto has_file = [&](const void* element) {
    return search.HasFile(name_of(element));
  };
  const auto may_be_rewritten = [&](const void* element) {
    return WasJustChanged(mLayout.DirectoryOf(name_of(element)));
  };
  std::unordered_set<const void*> missing;
  for (unsigned int i = 0; i < domains.count; ++i) {
    if (!has_file(domains.At(i))) missing.insert(domains.At(i));
  }
  // All are given the same time, however many they are.
  for (int look = 0; look < kMoreLooks; ++look) {
    if (std::ranges::none_of(missing, may_be_rewritten)) break;
    if (!WaitForWriter()) break;
    std::erase_if(missing, has_file);
  }
  return missing;
}

bool SettingsManager::IsListed(const SimpleString& site) {
  const SDIVector& domains = *GetDomains();
  if (mListChanges) return mListChanges->IsListed(site, domains);
  for (unsigned int i = 0; i < domains.count; ++i) {
    if (domains.At(i)->name == site) return true;
  }
  return false;
}

bool SettingsManager::AddDomainWithDefaultSettings(const SimpleString& domain) {
  if (!IsSiteName(domain)) return false;
  // Before the look at the list, which may be a stand-in so far.
  if (!DictionaryToChange(MasterDomain())) return false;
  if (IsListed(domain)) return true;
  if (!WriteOrUpdateSettingsForDomain(domain)) return false;
  return AddToList(domain);
}

bool SettingsManager::AddToList(const SimpleString& site) {
  if (!IsSiteName(site) || !DictionaryToChange(MasterDomain())) return false;
  if (IsListed(site)) return true;
  const bool listed = true;  // the value is never read
  const SettingDataItem element(site, kSettingsDataTypeBool, &listed);
  GetDomains()->addElement(&element);
  if (mListChanges) mListChanges->NoteAppended(site);
  return StoreDomains();
}

bool SettingsManager::RemoveFromList(const SimpleString& site) {
  if (!DictionaryToChange(MasterDomain())) return false;
  if (!IsListed(site)) return true;
  Unlist(site);
  return StoreDomains();
}

bool SettingsManager::StoreDomains() {
  // The list is changed in place: to store it is to write it.
  return mListChanges || SynchronizeSettingsForDomain(MasterDomain());
}

void SettingsManager::Unlist(const SimpleString& site) {
  if (mListChanges) return mListChanges->NoteRemoved(site);
  SDIVector* domains = GetDomains();
  for (unsigned int i = domains->count; i-- > 0;) {
    if (!(domains->At(i)->name == site)) continue;
    return domains->removeElementAtIndex(i);
  }
}

}  // namespace SASM
