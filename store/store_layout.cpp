#include "store/store_layout.h"

#include <cstring>
#include <memory>
#include <string_view>

namespace SASM {
namespace {

// Below the base directory.
constexpr char kSettingsPath[] = "tessary.example/support/corvaneplayer/sys";
constexpr char kSharedObjects[] = "#SharedObjects";

constexpr char kSettingsFileName[] = "settings.sol";
constexpr char kDomainDirectoryPrefix[] = "#";

constexpr char kMasterDictionaryName[] = "settings";
constexpr char kDomainDictionarySuffix[] = "/settings";

bool HasDotComponent(const char* path) {
  while (path) {
    const char* slash = std::strchr(path, '/');
    const std::string_view component =
        slash ? std::string_view(path, slash) : std::string_view(path);
    if (component == "." || component == "..") return true;
    path = slash ? slash + 1 : nullptr;
  }
  return false;
}

}  // namespace

StoreLayout::StoreLayout(const FileManager* file_manager)
    : mFileManager(file_manager),
      mBaseDirectory(file_manager->GetUserSettingsBaseDirectory()) {
  if (!IsOnDisk()) return;
  mSettingsDirectory = Join(mBaseDirectory, kSettingsPath);
  mSharedObjectsDirectory = LocalStorageRoot();
  const std::unique_ptr<StringVector> names(
      mFileManager->CreateNewListOfDirectoryContents(mSharedObjectsDirectory));
  if (!names) {
    mSharedObjectsDirectory = SimpleString::WithoutText();
  } else if (names->count > 0) {
    mSharedObjectsDirectory =
        Join(mSharedObjectsDirectory, SimpleString(names->TextAt(0)));
  }
}

const char* StoreLayout::Separator() const {
  return mFileManager->GetPathSeparator().c_str();
}

SimpleString StoreLayout::Join(const SimpleString& directory,
                               const SimpleString& name) const {
  // Below no directory there is no path; "/name" would be one.
  if (directory.IsEmpty()) return SimpleString::WithoutText();
  return SimpleString::Joined({directory.c_str(), Separator(), name.c_str()});
}

SimpleString StoreLayout::DirectoryOf(const SimpleString& domain) const {
  if (domain == MasterDomainName()) return mSettingsDirectory;
  if (mSettingsDirectory.IsEmpty() || !HasPlace(domain)) {
    return SimpleString::WithoutText();
  }
  return SimpleString::Joined({mSettingsDirectory.c_str(), Separator(),
                               kDomainDirectoryPrefix, domain.c_str()});
}

SimpleString StoreLayout::SettingsFileOf(const SimpleString& domain) const {
  return Join(DirectoryOf(domain), kSettingsFileName);
}

SimpleString StoreLayout::DictionaryNameOf(const SimpleString& domain) const {
  if (domain == MasterDomainName()) return kMasterDictionaryName;
  return SimpleString::Joined({domain.c_str(), kDomainDictionarySuffix});
}

SimpleString StoreLayout::LocalStorageRoot() const {
  return Join(mBaseDirectory, kSharedObjects);
}

SimpleString StoreLayout::LocalStorageOf(const SimpleString& domain) const {
  return Join(mSharedObjectsDirectory, domain);
}

const SimpleString& MasterDomainName() {
  static const SimpleString name("___MASTER_DOMAIN");
  return name;
}

bool HasPlace(const SimpleString& domain) {
  // The first component comes behind the prefix, and is then no "..".
  const char* slash = domain.HasText() ? std::strchr(domain.c_str(), '/') : "";
  return !slash || !HasDotComponent(slash);
}

bool StaysInside(const SimpleString& domain) {
  return !domain.IsEmpty() && *domain.c_str() != '/' &&
         !HasDotComponent(domain.c_str());
}

}  // namespace SASM
