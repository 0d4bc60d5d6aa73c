// The owner of every settings dictionary.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_set>
#include <vector>

#include "platform/file_descriptor.h"
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
// When a file cannot be read for a reason that says nothing about what it
// holds (see LeavesContentUnknown), one line on standard error says so. The
// file stays as it is; the domain's dictionary holds defaults, and whatever
// would store into it is false with nothing changed. Every operation on the
// domain tries to read the file again.
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
  // when it is only asked for. Null for a name that is neither the master
  // domain's nor a site's.
  SettingsDictionary* EnsureSettingsAreLoadedForDomain(
      const SimpleString& domain);
  // The dictionary in a settings file, owned by the caller; null when it cannot
  // be read or the reader rejects it. errno then is that of ReadFileImage, and
  // 0 for a rejected file. `*name` becomes a new string with the name that the
  // file carries, owned by the caller, or stays as it was.
  [[nodiscard]] SettingsDictionary* GetNewSettingsDataFromFile(
      const SimpleString& path, SimpleString** name);
  // Rewrites the domain's file: the old one is removed, then the new one
  // written. False when the file could not be written; it is then as before,
  // unless the old one cannot be read or written back. A link in the place of
  // a directory on the way is such a failure.
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
  // Stores a copy of the item and writes; the result of the write.
  bool SetSetting(SettingDataItem* item, const SimpleString& key,
                  const SimpleString& domain);
  // Lets `change` change the domain's dictionary and writes once; the result of
  // the write. False, without a call, for a name that is no site's and when it
  // is not known what the file holds.
  bool ChangeSettings(const SimpleString& domain,
                      const std::function<void(SettingsDictionary&)>& change);
  // Removes the key and writes, also when it was absent; the result of the
  // write.
  bool RemoveSettingWithKey(const SimpleString& key,
                            const SimpleString& domain);
  // The keys in dictionary order, owned by the caller; null without a
  // dictionary.
  [[nodiscard]] StringVector* GetNewSettingKeys(const SimpleString& domain);

  // --- Master settings and the list of domains

  // A missing or rejected file is replaced by one of defaults. False when it
  // is not known what the file holds.
  bool LoadMasterSettingsFromDisk();
  // Adds the missing default keys and writes, also when none was missing; the
  // result of the write.
  bool WriteOrUpdateDefaultMasterSettings();
  // The live list of the domains with settings of their own, an element each,
  // named by the domain. It may be changed in place and then stored, but not as
  // long as a ListWriteGuard lives. Never null.
  SDIVector* GetDomains();
  // Drops from the list in memory what is no site's name, and the sites
  // without a settings file.
  void VerifyDomainsList();

  // Whether the list has the site; takes one look-up in a table as long as a
  // ListWriteGuard lives, and a walk of the list otherwise.
  [[nodiscard]] bool IsListed(const SimpleString& site);

  // Adds the missing default keys of a domain and writes, also when none was
  // missing; the result of the write.
  bool WriteOrUpdateSettingsForDomain(const SimpleString& domain);
  // Gives a new site its defaults and puts it at the end of the list; true at
  // once for one that is listed. False when a file could not be written, and
  // with nothing changed for a name that is no site's.
  bool AddDomainWithDefaultSettings(const SimpleString& domain);
  // Put a site at the end of the list, as it is, and take one element of its
  // name off the list, with its settings left alone. True at once for one that
  // is listed, or is not. False when the list could not be written.
  bool AddToList(const SimpleString& site);
  bool RemoveFromList(const SimpleString& site);

  // --- Removal and sizes
  //
  // These refuse a name that is neither the master domain's nor a site's: the
  // result is false or 0, and nothing is touched. A removal goes on after a
  // failure and is false at the end.

  bool DeleteDomainStorage(const SimpleString& domain);
  // The site's local storage, then its settings and its place in the list.
  // With the settings of "a/b/c" go the settings directories of "a/b" and "a",
  // up to the first that is not empty. The settings stay when the storage could
  // not be removed. The master domain has no storage, and of its settings only
  // the file is removed.
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
  class ListChanges;
  friend class ListWriteGuard;

  [[nodiscard]] SettingsDictionary* LoadedDictionary(
      const SimpleString& domain) const;
  // As EnsureSettingsAreLoadedForDomain; null also when it is not known what
  // the domain's file holds.
  [[nodiscard]] SettingsDictionary* DictionaryToChange(
      const SimpleString& domain);
  // Takes over `dictionary` and returns it. One that it replaces stays alive:
  // callers may hold pointers into it.
  SettingsDictionary* SetDictionary(
      const SimpleString& domain,
      std::unique_ptr<SettingsDictionary> dictionary);
  void DeleteAllDictionaries();
  // Loads the master settings and leaves the other dictionaries alone.
  bool LoadMasterSettings();
  SettingsDictionary* LoadSiteSettings(const SimpleString& site);
  // The dictionary in a domain's file; null when there is none. False when it
  // is not known what the file holds.
  [[nodiscard]] bool ReadDictionary(
      const SimpleString& domain,
      std::unique_ptr<SettingsDictionary>* dictionary);
  [[nodiscard]] bool IsUnread(const SimpleString& domain) const;
  // Makes the defaults stand in for a file that could not be read.
  SettingsDictionary* StandIn(const SimpleString& domain);
  // SynchronizeSettingsForDomain for a domain whose dictionary is loaded.
  bool WriteFileOf(const SimpleString& domain);
  // The open directory of the domain's settings file, made where it is
  // missing.
  [[nodiscard]] FileDescriptor OpenDirectoryOf(const SimpleString& domain);
  // Inserts copies of the rows whose keys the domain lacks. False when the
  // domain cannot be changed.
  [[nodiscard]] bool InsertMissing(std::span<const DefaultSetting> rows,
                                   const SimpleString& domain);
  // The list as it is stored, without loading anything; null when missing.
  [[nodiscard]] SDIVector* StoredDomains() const;
  bool StoreEmptyDomains();
  // The elements of what is no site's name and of sites without a file.
  [[nodiscard]] std::unordered_set<const void*> ElementsWithoutFile(
      const SDIVector& domains) const;
  // Writes the list, which has been changed in place, or leaves that to a
  // ListWriteGuard.
  bool StoreDomains();
  void Unlist(const SimpleString& site);
  void RemoveEmptyDirectoriesAbove(const SimpleString& site);
  bool RemoveAllSettings();
  bool RemoveAllLocalStorage();
  // All entries but the one of that name. False, with errno, also when the
  // directory cannot be listed.
  bool RemoveEntries(const SimpleString& directory,
                     const SimpleString& kept_name);

  StoreLayout mLayout;
  FileManager* mFileManager;
  DictionaryMap mDomainSettings;
  std::vector<std::unique_ptr<SettingsDictionary>> mReplaced;
  // The domains whose files could not be read.
  std::unordered_set<std::string> mUnread;
  // Not null as long as a ListWriteGuard lives.
  std::unique_ptr<ListChanges> mListChanges;
};

// Makes an action on many sites one action: as long as it lives, sites that are
// added or removed change the list in memory only; at its end, the list is
// written once if it was changed. Removed sites leave the list in memory at the
// end, too. Killed in between, the process leaves at worst listed names without
// files, which the next start drops. May be nested; the outermost writes.
class ListWriteGuard {
 public:
  // The manager is borrowed and outlives this object.
  explicit ListWriteGuard(SettingsManager* manager);
  ~ListWriteGuard() { (void)Finish(); }
  ListWriteGuard(const ListWriteGuard&) = delete;
  ListWriteGuard& operator=(const ListWriteGuard&) = delete;

  // Writes now, for callers that want the result of the write.
  bool Finish();

 private:
  SettingsManager* manager_;
  bool is_outermost_;
};

}  // namespace SASM
