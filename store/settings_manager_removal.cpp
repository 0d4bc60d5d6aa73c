// Removal of site data, and sizes.
#include <memory>

#include "store/settings_manager.h"
#include "store/stored_data.h"

namespace SASM {

bool SettingsManager::DeleteDomainStorage(const SimpleString& domain) {
  if (!StaysInside(domain)) return false;
  if (!mLayout.IsOnDisk()) return true;
  return mFileManager->RemoveFileAtPath(mLayout.LocalStorageOf(domain));
}

bool SettingsManager::RemoveDomainInformation(const SimpleString& domain,
                                              bool remove_settings,
                                              bool remove_storage) {
  const bool is_master = domain == MasterDomain();
  const bool storage_removed =
      !remove_storage || is_master || DeleteDomainStorage(domain);
  if (!remove_settings || !storage_removed) return storage_removed;
  if (!DeleteDomainSettingsFile(domain, false)) return false;
  if (is_master) return true;
  SDIVector* domains = GetDomains();
  if (!domains) return false;
  for (unsigned int i = domains->count; i-- > 0;) {
    if (!(domains->At(i)->name == domain)) continue;
    domains->removeElementAtIndex(i);
    break;
  }
  // The list is changed in place: to store it is to write it.
  return SynchronizeSettingsForDomain(MasterDomain());
}

bool SettingsManager::RemoveAllSettingsAndOrLocalStorage(bool remove_settings,
                                                         bool remove_storage) {
  const bool settings_removed = !remove_settings || RemoveAllSettings();
  const bool storage_removed = !remove_storage || RemoveAllLocalStorage();
  return settings_removed && storage_removed;
}

bool SettingsManager::RemoveAllSettings() {
  const bool removed = !mLayout.IsOnDisk() || mFileManager->RemoveFileAtPath(
                                                  mLayout.SettingsDirectory());
  // Writing creates the directory again, with the global settings in it.
  StoreEmptyDomains();
  SynchronizeSettingsForDomain(MasterDomain());
  return removed;
}

bool SettingsManager::RemoveAllLocalStorage() {
  if (!mLayout.IsOnDisk()) return true;
  const SimpleString root = mLayout.LocalStorageRoot();
  const std::unique_ptr<StringVector> names(
      mFileManager->CreateNewListOfDirectoryContents(root));
  bool removed = names != nullptr;
  for (unsigned int i = 0; names && i < names->count; ++i) {
    const SimpleString entry = mLayout.Join(root, names->TextAt(i));
    removed = mFileManager->RemoveFileAtPath(entry) && removed;
  }
  return removed;
}

bool SettingsManager::RemoveAllSettingsAndOrLocalStorageForTimeRange(
    bool remove_settings, bool remove_storage, unsigned long lower_age_seconds,
    unsigned long upper_age_seconds) {
  const auto remove_below = [&](const SimpleString& directory) {
    return !mLayout.IsOnDisk() ||
           mFileManager->RemoveFilesInDirectoryInDateRange(
               directory, lower_age_seconds, upper_age_seconds);
  };
  bool removed = true;
  if (remove_settings) {
    removed = remove_below(mLayout.SettingsDirectory());
    DeleteAllDictionaries();
    AddDictionary(MasterDomain(), new (std::nothrow) SettingsDictionary);
    SynchronizeSettingsForDomain(MasterDomain());
  }
  if (!remove_storage) return removed;
  return remove_below(mLayout.LocalStorageDirectory()) && removed;
}

bool SettingsManager::RemoveAssetCache() const {
  return mFileManager->RemoveFileAtPath(mFileManager->GetAssetCacheDirectory());
}

std::uint64_t SettingsManager::SizeOfLocalStorage(
    const SimpleString& domain) const {
  return LocalStorageSize(domain, mLayout, *mFileManager);
}

std::uint64_t SettingsManager::SizeOfSettings(
    const SimpleString& domain) const {
  if (!StaysInside(domain)) return 0;
  return mFileManager->SizeOfFileAtPath(domain == MasterDomain()
                                            ? mLayout.SettingsFileOf(domain)
                                            : mLayout.DirectoryOf(domain));
}

}  // namespace SASM
