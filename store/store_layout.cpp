#include "store/store_layout.h"

#include <cerrno>
#include <memory>

namespace SASM {
namespace {

// Below the base directory.
constexpr char kSettingsPath[] = "tessary.example/support/corvaneplayer/sys";
constexpr char kSharedObjects[] = "#SharedObjects";

constexpr char kDomainDirectoryPrefix[] = "#";

constexpr char kMasterDictionaryName[] = "settings";
constexpr char kDomainDictionarySuffix[] = "/settings";

}  // namespace

StoreLayout::StoreLayout(const FileManager* file_manager)
    : mFileManager(file_manager),
      mBaseDirectory(file_manager->GetUserSettingsBaseDirectory()),
      mSettingsDirectory(Join(mBaseDirectory, kSettingsPath)),
      mSharedObjectsDirectory(LocalStorageRoot()) {
  FindLocalStorage();
}

void StoreLayout::FindLocalStorage() {
  const SimpleString root = LocalStorageRoot();
  errno = 0;
  const std::unique_ptr<StringVector> names(
      mFileManager->CreateNewListOfDirectoryContents(root));
  mListingError = errno == ENOENT || errno == ENOTDIR ? 0 : errno;
  if (names->count > 0) {
    mSharedObjectsDirectory = Join(root, names->TextAt(0));
  }
}

SimpleString StoreLayout::Join(const SimpleString& directory,
                               const SimpleString& name) const {
  // Below no directory there is no path; "/name" would be one.
  if (directory.IsEmpty() || name.IsEmpty()) return {};
  return SimpleString::Joined({directory.c_str(),
                               mFileManager->GetPathSeparator().c_str(),
                               name.c_str()});
}

SimpleString StoreLayout::DirectoryOf(const SimpleString& domain) const {
  if (domain == MasterDomainName()) return mSettingsDirectory;
  if (!IsOnDisk() || !IsSiteName(domain)) return {};
  return SimpleString::Joined({mSettingsDirectory.c_str(),
                               mFileManager->GetPathSeparator().c_str(),
                               kDomainDirectoryPrefix, domain.c_str()});
}

SimpleString StoreLayout::SettingsFileOf(const SimpleString& domain) const {
  return Join(DirectoryOf(domain), kSettingsFileName);
}

SimpleString StoreLayout::WayToSettingsFileOf(const SimpleString& site) const {
  if (!IsSiteName(site)) return {};
  return SimpleString::Joined({kDomainDirectoryPrefix, site.c_str(),
                               mFileManager->GetPathSeparator().c_str(),
                               kSettingsFileName});
}

SimpleString StoreLayout::DictionaryNameOf(const SimpleString& domain) const {
  if (domain == MasterDomainName()) return kMasterDictionaryName;
  return SimpleString::Joined({domain.c_str(), kDomainDictionarySuffix});
}

SimpleString StoreLayout::LocalStorageRoot() const {
  return Join(mBaseDirectory, kSharedObjects);
}

SimpleString StoreLayout::LocalStorageOf(const SimpleString& site) const {
  return IsSiteName(site) ? Join(mSharedObjectsDirectory, site)
                          : SimpleString();
}

}  // namespace SASM
