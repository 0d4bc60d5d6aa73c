// Where the settings and the stored data are.
#pragma once

#include "platform/file_manager.h"
#include "store/site_name.h"

namespace SASM {

// Every path of the store, below the user settings base directory. Domain
// names go into paths unchanged. A path that does not exist, for a name that
// is neither the master domain's nor a site's or without a home directory, is
// empty. Only paths: nothing here is created, changed or checked, except for
// the listing of the local storage once, at construction.
class StoreLayout {
 public:
  // Looks up the local storage directory: "#SharedObjects" below the base
  // directory, or the first entry in its sorted listing. The file manager is
  // borrowed and outlives the layout.
  explicit StoreLayout(const FileManager* file_manager);

  // False when the user has no home directory: there are no paths then.
  [[nodiscard]] bool IsOnDisk() const { return !mBaseDirectory.IsEmpty(); }

  [[nodiscard]] const SimpleString& BaseDirectory() const {
    return mBaseDirectory;
  }
  // The directory of the master settings file and of all domain directories.
  [[nodiscard]] const SimpleString& SettingsDirectory() const {
    return mSettingsDirectory;
  }
  // The directory of a domain's settings file; for the master domain, the
  // settings directory.
  [[nodiscard]] SimpleString DirectoryOf(const SimpleString& domain) const;
  [[nodiscard]] SimpleString SettingsFileOf(const SimpleString& domain) const;
  // The same of a site, from the settings directory on.
  [[nodiscard]] SimpleString WayToSettingsFileOf(
      const SimpleString& site) const;
  // The name a domain's settings file carries inside.
  [[nodiscard]] SimpleString DictionaryNameOf(const SimpleString& domain) const;

  // "#SharedObjects" itself.
  [[nodiscard]] SimpleString LocalStorageRoot() const;
  // The first directory in it. Fixed from when it could be listed, whatever is
  // removed afterwards.
  [[nodiscard]] const SimpleString& LocalStorageDirectory() const {
    return mSharedObjectsDirectory;
  }
  [[nodiscard]] SimpleString LocalStorageOf(const SimpleString& site) const;
  // The error number if it could not be listed: where sites store data is then
  // unknown. 0 also when it does not exist.
  [[nodiscard]] int ListingError() const { return mListingError; }
  // Lists it, as the constructor has done: for another try after an error.
  void FindLocalStorage();

  // `directory`, the separator, `name`; empty when one of them is.
  [[nodiscard]] SimpleString Join(const SimpleString& directory,
                                  const SimpleString& name) const;

  // The name of every settings file.
  static constexpr char kSettingsFileName[] = "settings.sol";

 private:
  const FileManager* mFileManager;
  SimpleString mBaseDirectory;
  SimpleString mSettingsDirectory;
  SimpleString mSharedObjectsDirectory;
  int mListingError = 0;
};

}  // namespace SASM
