// Where the settings and the stored data lie.
#pragma once

#include "platform/file_manager.h"

namespace SASM {

// Every path of the store, below the user settings base directory. Domain
// names go into paths unchanged. A path for which memory is short is without
// a text. Only paths: nothing here is created, changed or checked, but for
// the listing of the local storage once, at construction.
class StoreLayout {
 public:
  // Looks up the local storage directory: "#SharedObjects" below the base
  // directory, or the first entry in its sorted listing. The file manager is
  // borrowed and outlives the layout.
  explicit StoreLayout(const FileManager* file_manager);

  // False when the user has no home directory: there are no paths then. True
  // when memory was too short to tell: every path is then without a text.
  [[nodiscard]] bool IsOnDisk() const {
    return !mBaseDirectory.HasText() || !mBaseDirectory.IsEmpty();
  }

  // The directory of the master settings file and of all domain directories.
  [[nodiscard]] const SimpleString& SettingsDirectory() const {
    return mSettingsDirectory;
  }
  // The directory of a domain's settings file; of the master domain, the
  // settings directory. Without a text where HasPlace is false.
  [[nodiscard]] SimpleString DirectoryOf(const SimpleString& domain) const;
  [[nodiscard]] SimpleString SettingsFileOf(const SimpleString& domain) const;
  // The name a domain's settings file carries inside.
  [[nodiscard]] SimpleString DictionaryNameOf(const SimpleString& domain) const;

  // "#SharedObjects" itself.
  [[nodiscard]] SimpleString LocalStorageRoot() const;
  // Fixed at construction, whatever is removed afterwards.
  [[nodiscard]] const SimpleString& LocalStorageDirectory() const {
    return mSharedObjectsDirectory;
  }
  [[nodiscard]] SimpleString LocalStorageOf(const SimpleString& domain) const;

  // `directory`, the separator, `name`.
  [[nodiscard]] SimpleString Join(const SimpleString& directory,
                                  const SimpleString& name) const;

 private:
  [[nodiscard]] const char* Separator() const;

  const FileManager* mFileManager;
  SimpleString mBaseDirectory;
  SimpleString mSettingsDirectory;
  SimpleString mSharedObjectsDirectory;
};

// The reserved domain name under which the global settings are kept. Lives to
// the end of the process.
[[nodiscard]] const SimpleString& MasterDomainName();

// True when the settings of a domain of this name lie below the settings
// directory. The name may be odd, but has no component "." or ".." after a
// "/", which could lead out of there.
[[nodiscard]] bool HasPlace(const SimpleString& domain);

// True when a path made with this domain name as its last part stays below
// the directory before it: the name is neither empty nor absolute and has no
// component "." or "..".
[[nodiscard]] bool StaysInside(const SimpleString& domain);

}  // namespace SASM
