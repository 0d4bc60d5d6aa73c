// The owner of every settings dictionary.
#pragma once

#include <cstdint>
#include <span>

#include "platform/file_manager.h"
#include "settings/settings_dictionary.h"
#include "settings/string_vector.h"
#include "store/store_layout.h"

namespace SASM {

struct DefaultSetting;

// Keeps the settings dictionaries, one per web site domain and one for the
// global settings (the master domain), each in step with its file on disk. A
// domain's file is read the first time the domain is named and rewritten
// whole after every change; there is no separate save step. The files are
// shared with the plug-in and not locked: the last writer wins.
//
// From the end of construction on the master dictionary is loaded. A loaded
// dictionary stays until the master settings are loaded again. When a file
// cannot be written the dictionary in memory holds the change all the same,
// and the result is false. Without a home directory everything is kept in
// memory only, and counts as written.
//
// Pointers into a dictionary live until that key is replaced or removed or
// the master settings are loaded again.
class SettingsManager {
 public:
  // Loads the master settings; creates their file and its missing keys. The
  // file manager is borrowed and outlives this object.
  explicit SettingsManager(FileManager* file_manager);
  ~SettingsManager();
  SettingsManager(const SettingsManager&) = delete;
  SettingsManager& operator=(const SettingsManager&) = delete;

  [[nodiscard]] static const SimpleString& MasterDomain();

  // --- Dictionaries and their files

  // The domain's dictionary, owned by the manager. A domain without a
  // readable file gets an empty dictionary and at once a file of it, also
  // when it is only asked for. Null when memory is short, the file is then as
  // before, and for a name that leads out of the settings directory.
  SettingsDictionary* EnsureSettingsAreLoadedForDomain(
      const SimpleString& domain);
  // See ReadSettingsFile.
  [[nodiscard]] SettingsDictionary* GetNewSettingsDataFromFile(
      const SimpleString& path, SimpleString** name);
  // Rewrites the domain's file: the old one is removed, then the new one
  // written. False when there is now no file or a short one, and, with
  // nothing changed, when the domain's directory is a link to another.
  bool SynchronizeSettingsForDomain(const SimpleString& domain);
  // Removes the domain's settings file, or its whole directory unless
  // `file_only`; of the master domain always the file alone. True also when
  // nothing is there.
  bool DeleteDomainSettingsFile(const SimpleString& domain, bool file_only);

  // --- Single settings

  bool HasSetting(const SimpleString& key, const SimpleString& domain);
  // Borrowed; null when there is no such setting.
  [[nodiscard]] SettingDataItem* GetSetting(const SimpleString& key,
                                            const SimpleString& domain);
  // Stores a copy of the item and writes; the result of the write. False,
  // with nothing changed, when memory is short.
  bool SetSetting(SettingDataItem* item, const SimpleString& key,
                  const SimpleString& domain);
  // Removes the key and writes, also when it was absent; the result of the
  // write.
  bool RemoveSettingWithKey(const SimpleString& key,
                            const SimpleString& domain);
  // The keys in dictionary order, owned by the caller; null when memory is
  // short.
  [[nodiscard]] StringVector* GetNewSettingKeys(const SimpleString& domain);

  // --- Master settings and the list of domains

  // A missing or rejected file is replaced by one of defaults. False only
  // when memory is short: a file that could not be read for that stays.
  bool LoadMasterSettingsFromDisk();
  // Adds the missing default keys and writes, also when none was missing; the
  // result of the write.
  bool WriteOrUpdateDefaultMasterSettings();
  // The live list of the domains with settings of their own, an element each,
  // named by the domain. It may be changed in place and then stored. Null
  // only when memory is short.
  SDIVector* GetDomains();
  // Drops the domains without a settings file from the list in memory.
  void VerifyDomainsList();

  // Adds the missing default keys of a domain and writes, also when none was
  // missing; the result of the write.
  bool WriteOrUpdateSettingsForDomain(const SimpleString& domain);
  // Gives a new domain its defaults and puts it at the end of the list; true
  // at once for one that is listed. False when a file could not be written.
  bool AddDomainWithDefaultSettings(const SimpleString& domain);

  // --- Removal and sizes
  //
  // These refuse a domain name that could lead out of its directory: the
  // result is false or 0, and nothing is touched. A removal goes on after a
  // failure and is false at the end.

  bool DeleteDomainStorage(const SimpleString& domain);
  // The site's local storage, then its settings and its place in the list.
  // The settings stay when the storage could not be removed. The master
  // domain has no storage, and of its settings only the file goes.
  bool RemoveDomainInformation(const SimpleString& domain, bool remove_settings,
                               bool remove_storage);
  // The global settings survive: they are written back from memory.
  bool RemoveAllSettingsAndOrLocalStorage(bool remove_settings,
                                          bool remove_storage);
  // Only files whose age in seconds lies strictly between the bounds. The
  // global settings do not survive: their file is written back empty.
  bool RemoveAllSettingsAndOrLocalStorageForTimeRange(
      bool remove_settings, bool remove_storage,
      unsigned long lower_age_seconds, unsigned long upper_age_seconds);
  [[nodiscard]] bool RemoveAssetCache() const;

  // Bytes on disk, the directories' own included. The master domain has no
  // local storage.
  [[nodiscard]] std::uint64_t SizeOfLocalStorage(
      const SimpleString& domain) const;
  [[nodiscard]] std::uint64_t SizeOfSettings(const SimpleString& domain) const;

 private:
  using DictionaryMap = HashMap<SimpleString, SettingsDictionary*, hashSS>;

  [[nodiscard]] SettingsDictionary* LoadedDictionary(
      const SimpleString& domain);
  // Takes over `dictionary`, null included; null when memory is short.
  SettingsDictionary* AddDictionary(const SimpleString& domain,
                                    SettingsDictionary* dictionary);
  void DeleteAllDictionaries();
  // The domain's dictionary in `*dictionary`, owned by the caller; null when
  // there is none to be had from its file. False when memory is short, and
  // it is not known what the file holds.
  [[nodiscard]] bool ReadDictionary(const SimpleString& domain,
                                    SettingsDictionary** dictionary) const;
  // False for a path below the settings directory that leads over a link:
  // whoever made the link would choose what is changed.
  [[nodiscard]] bool IsOfStore(const SimpleString& path) const;
  // Inserts copies of the rows whose keys the domain lacks. False when memory
  // is short.
  [[nodiscard]] bool InsertMissing(std::span<const DefaultSetting> rows,
                                   const SimpleString& domain);
  // The list as it is stored, without loading anything; null when missing.
  [[nodiscard]] SDIVector* StoredDomains();
  bool StoreEmptyDomains();
  bool RemoveAllSettings();
  bool RemoveAllLocalStorage();

  StoreLayout mLayout;
  FileManager* mFileManager;
  DictionaryMap mDomainSettings;
  // Of each bucket the dictionary asked for last: one row of a list asks
  // several times, and lists ask in the order in which they were loaded.
  const DictionaryMap::Node* mLastUsed[DictionaryMap::kBucketCount] = {};
};

}  // namespace SASM
