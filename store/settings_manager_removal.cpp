// Removal of site data, and sizes.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

#include "platform/open_below.h"
#include "store/settings_manager.h"
#include "store/stored_data.h"

namespace SASM {

bool SettingsManager::DeleteDomainStorage(const SimpleString& domain) {
  if (!IsSiteName(domain)) return false;
  if (mLayout.ListingError() != 0) mLayout.FindLocalStorage();
  if (const int error = mLayout.ListingError()) {
    std::fprintf(stderr, "DeleteDomainStorage: %s\n", std::strerror(error));
    return false;
  }
  return mFileManager->RemoveFileAtPath(mLayout.LocalStorageOf(domain));
}

bool SettingsManager::RemoveDomainInformation(const SimpleString& domain,
                                              bool remove_settings,
                                              bool remove_storage) {
  const bool is_master = domain == MasterDomain();
  if (remove_settings && !DictionaryToChange(MasterDomain())) return false;
  const bool storage_removed =
      !remove_storage || is_master || DeleteDomainStorage(domain);
  if (!remove_settings || !storage_removed) return storage_removed;
  if (!DeleteDomainSettingsFile(domain, false)) return false;
  if (is_master) return true;
  RemoveEmptyDirectoriesAbove(domain);
  Unlist(domain);
  return StoreDomains();
}

void SettingsManager::RemoveEmptyDirectoriesAbove(const SimpleString& site) {
  const std::string_view name = site.c_str();
  auto left = std::ranges::count(name, '/');
  if (left == 0 || !mLayout.IsOnDisk()) return;
  std::string path = mLayout.DirectoryOf(site).c_str();
  for (; left > 0; --left) {
    path.resize(path.rfind('/'));
    const std::size_t slash = path.rfind('/');
    const FileDescriptor holder = OpenBelow(mLayout.BaseDirectory().c_str(),
                                            path.substr(0, slash).c_str());
    if (!holder.IsOpen()) return;
    if (unlinkat(holder.Get(), &path[slash + 1], AT_REMOVEDIR) != 0) return;
  }
}

bool SettingsManager::RemoveAllSettingsAndOrLocalStorage(bool remove_settings,
                                                         bool remove_storage) {
  const bool settings_removed = !remove_settings || RemoveAllSettings();
  const bool storage_removed = !remove_storage || RemoveAllLocalStorage();
  return settings_removed && storage_removed;
}

bool SettingsManager::RemoveAllSettings() {
  if (!DictionaryToChange(MasterDomain())) return false;
  const SimpleString& directory = mLayout.SettingsDirectory();
  // The global settings stay until they are replaced: whatever happens before,
  // they are not lost.
  bool removed = RemoveEntries(directory, StoreLayout::kSettingsFileName);
  if (!removed && (errno == ELOOP || errno == ENOTDIR)) {
    removed = mFileManager->RemoveFileAtPath(directory);
  }
  StoreEmptyDomains();
  SynchronizeSettingsForDomain(MasterDomain());
  return removed;
}

bool SettingsManager::RemoveAllLocalStorage() {
  return RemoveEntries(mLayout.LocalStorageRoot(), "");
}

bool SettingsManager::RemoveEntries(const SimpleString& directory,
                                    const SimpleString& kept_name) {
  errno = 0;
  const std::unique_ptr<StringVector> names(
      mFileManager->CreateNewListOfDirectoryContents(directory));
  if (errno != 0 && errno != ENOENT) return false;
  bool removed = true;
  for (unsigned int i = 0; i < names->count; ++i) {
    if (kept_name == names->TextAt(i)) continue;
    const SimpleString entry = mLayout.Join(directory, names->TextAt(i));
    removed = mFileManager->RemoveFileAtPath(entry) && removed;
  }
  return removed;
}

bool SettingsManager::RemoveAllSettingsAndOrLocalStorageForTimeRange(
    bool remove_settings, bool remove_storage, unsigned long lower_age_seconds,
    unsigned long upper_age_seconds) {
  const auto remove_below = [&](const SimpleString& directory) {
    return mFileManager->RemoveFilesInDirectoryInDateRange(
        directory, lower_age_seconds, upper_age_seconds);
  };
  bool removed = true;
  if (remove_settings && !DictionaryToChange(MasterDomain())) {
    removed = false;
  } else if (remove_settings) {
    removed = remove_below(mLayout.SettingsDirectory());
    DeleteAllDictionaries();
    SetDictionary(MasterDomain(), std::make_unique<SettingsDictionary>());
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
  return mFileManager->SizeOfFileAtPath(domain == MasterDomain()
                                            ? mLayout.SettingsFileOf(domain)
                                            : mLayout.DirectoryOf(domain));
}

}  // namespace SASM
