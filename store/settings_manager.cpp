#include "store/settings_manager.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "platform/link_check.h"
#include "settings/settings_writer.h"
#include "store/default_settings.h"
#include "store/setting_keys.h"
#include "store/settings_file.h"
#include "store/stored_data.h"

namespace SASM {
namespace {

// Creates the directory itself, as the last name of a directory chain.
const SimpleString& ThisDirectory() {
  static const SimpleString name(".");
  return name;
}

// Kept: a list that is not found for want of a key would seem to be missing.
const SimpleString& DomainsKey() {
  static const SimpleString key(kDomains);
  return key;
}

}  // namespace

SettingsManager::SettingsManager(FileManager* file_manager)
    : mLayout(file_manager), mFileManager(file_manager) {
  LoadMasterSettingsFromDisk();
}

SettingsManager::~SettingsManager() { DeleteAllDictionaries(); }

const SimpleString& SettingsManager::MasterDomain() {
  return MasterDomainName();
}

SettingsDictionary* SettingsManager::LoadedDictionary(
    const SimpleString& domain) {
  const unsigned int hash = hashSS(domain);
  const DictionaryMap::Node*& last =
      mLastUsed[hash % DictionaryMap::kBucketCount];
  const auto is_wanted = [&](const DictionaryMap::Node* node) {
    return node && node->hash == hash && node->key == domain;
  };
  if (is_wanted(last)) return last->value;
  // A bucket holds the newest first: what was loaded next stands before.
  if (last && is_wanted(last->prev)) return (last = last->prev)->value;
  const auto found = mDomainSettings.find(domain);
  if (found == mDomainSettings.end()) return nullptr;
  return (last = &*found)->value;
}

SettingsDictionary* SettingsManager::EnsureSettingsAreLoadedForDomain(
    const SimpleString& domain) {
  if (SettingsDictionary* loaded = LoadedDictionary(domain)) return loaded;
  SettingsDictionary* read = nullptr;
  if (!ReadDictionary(domain, &read)) return nullptr;
  if (read) return AddDictionary(domain, read);
  SettingsDictionary* empty =
      AddDictionary(domain, new (std::nothrow) SettingsDictionary);
  if (empty) SynchronizeSettingsForDomain(domain);
  return empty;
}

bool SettingsManager::ReadDictionary(const SimpleString& domain,
                                     SettingsDictionary** dictionary) const {
  *dictionary = nullptr;
  if (!mLayout.IsOnDisk()) return true;
  SimpleString* name = nullptr;
  bool short_of_memory = false;
  *dictionary =
      ReadSettingsFile(mLayout.SettingsFileOf(domain), &name, &short_of_memory);
  delete name;
  return *dictionary || !short_of_memory;
}

SettingsDictionary* SettingsManager::AddDictionary(
    const SimpleString& domain, SettingsDictionary* dictionary) {
  std::unique_ptr<SettingsDictionary> owned(dictionary);
  if (!owned || !owned->IsUsable()) return nullptr;
  const auto added = mDomainSettings.insert(domain, owned.get());
  return added == mDomainSettings.end() ? nullptr : owned.release();
}

void SettingsManager::DeleteAllDictionaries() {
  for (auto& entry : mDomainSettings) delete entry.value;
  mDomainSettings.clear();
  std::ranges::fill(mLastUsed, nullptr);
}

SettingsDictionary* SettingsManager::GetNewSettingsDataFromFile(
    const SimpleString& path, SimpleString** name) {
  return ReadSettingsFile(path, name);
}

bool SettingsManager::SynchronizeSettingsForDomain(const SimpleString& domain) {
  if (!mLayout.IsOnDisk()) return true;
  unsigned char* data = nullptr;
  unsigned long size = 0;
  SMImplementation::SettingsWriter(this, domain)
      .GetNewSettingsWithName(mLayout.DictionaryNameOf(domain), &data, size);
  const std::unique_ptr<unsigned char[]> image(data);
  if (!image) return false;
  // Before the old file goes, all is had that the new one needs.
  const SimpleString file = mLayout.SettingsFileOf(domain);
  if (!IsOfStore(file)) return false;
  // What it cannot create, the writing will miss.
  (void)mFileManager->CreateDirectoryAtPath(mLayout.DirectoryOf(domain),
                                            ThisDirectory());
  return mFileManager->RemoveFileAtPath(file) &&
         WriteFileImage(file, image.get(), size);
}

bool SettingsManager::DeleteDomainSettingsFile(const SimpleString& domain,
                                               bool file_only) {
  if (!mLayout.IsOnDisk()) return true;
  const bool is_file = file_only || domain == MasterDomain();
  if (!is_file && !StaysInside(domain)) return false;
  const SimpleString path =
      is_file ? mLayout.SettingsFileOf(domain) : mLayout.DirectoryOf(domain);
  return IsOfStore(path) && mFileManager->RemoveFileAtPath(path);
}

bool SettingsManager::IsOfStore(const SimpleString& path) const {
  return path.HasText() && !LeadsThroughLink(mLayout.SettingsDirectory(), path);
}

bool SettingsManager::HasSetting(const SimpleString& key,
                                 const SimpleString& domain) {
  return GetSetting(key, domain) != nullptr;
}

SettingDataItem* SettingsManager::GetSetting(const SimpleString& key,
                                             const SimpleString& domain) {
  const SettingsDictionary* dictionary =
      EnsureSettingsAreLoadedForDomain(domain);
  return dictionary ? FindSetting(key, *dictionary) : nullptr;
}

bool SettingsManager::SetSetting(SettingDataItem* item, const SimpleString& key,
                                 const SimpleString& domain) {
  SettingsDictionary* dictionary = EnsureSettingsAreLoadedForDomain(domain);
  SettingDataItem copy = *item;
  if (!dictionary || !copy.IsWhole()) return false;
  const auto stored = dictionary->insert(key, std::move(copy));
  return stored != dictionary->end() && SynchronizeSettingsForDomain(domain);
}

bool SettingsManager::RemoveSettingWithKey(const SimpleString& key,
                                           const SimpleString& domain) {
  SettingsDictionary* dictionary = EnsureSettingsAreLoadedForDomain(domain);
  if (!dictionary) return false;
  const auto found = dictionary->find(key);
  if (found != dictionary->end()) dictionary->erase(found);
  return SynchronizeSettingsForDomain(domain);
}

StringVector* SettingsManager::GetNewSettingKeys(const SimpleString& domain) {
  SettingsDictionary* dictionary = EnsureSettingsAreLoadedForDomain(domain);
  std::unique_ptr<StringVector> keys(
      dictionary ? new (std::nothrow) StringVector : nullptr);
  if (!keys) return nullptr;
  for (const auto& entry : *dictionary) {
    if (!keys->addElement(&entry.key)) return nullptr;
  }
  return keys.release();
}

bool SettingsManager::LoadMasterSettingsFromDisk() {
  SettingsDictionary* read = nullptr;
  if (!ReadDictionary(MasterDomain(), &read)) return false;
  DeleteAllDictionaries();
  SettingsDictionary* master = AddDictionary(
      MasterDomain(), read ? read : new (std::nothrow) SettingsDictionary);
  if (!master) return false;
  if (!read) SynchronizeSettingsForDomain(MasterDomain());
  WriteOrUpdateDefaultMasterSettings();
  if (!StoredDomains()) StoreEmptyDomains();
  VerifyDomainsList();
  return true;
}

bool SettingsManager::WriteOrUpdateDefaultMasterSettings() {
  return InsertMissing(DefaultMasterSettings(), MasterDomain()) &&
         SynchronizeSettingsForDomain(MasterDomain());
}

bool SettingsManager::InsertMissing(std::span<const DefaultSetting> rows,
                                    const SimpleString& domain) {
  SettingsDictionary* dictionary = EnsureSettingsAreLoadedForDomain(domain);
  const SettingsDictionary* master =
      EnsureSettingsAreLoadedForDomain(MasterDomain());
  return dictionary && master &&
         InsertMissingDefaults(rows, *master, dictionary);
}

SDIVector* SettingsManager::StoredDomains() {
  return ArrayOrNull(GetSetting(DomainsKey(), MasterDomain()));
}

bool SettingsManager::StoreEmptyDomains() {
  const SDIVector empty;
  SettingDataItem item(kDomains, kSettingsDataTypeArray, &empty);
  return SetSetting(&item, DomainsKey(), MasterDomain());
}

SDIVector* SettingsManager::GetDomains() {
  if (!StoredDomains()) LoadMasterSettingsFromDisk();
  return StoredDomains();
}

void SettingsManager::VerifyDomainsList() {
  // Not GetDomains: it would load the settings that are being loaded.
  SDIVector* domains = StoredDomains();
  if (!domains || !mLayout.IsOnDisk()) return;
  domains->removeElementsIf([this](const void* element) {
    const auto* domain = static_cast<const SettingDataItem*>(element);
    return !HasSettingsFile(domain->name, mLayout, *mFileManager);
  });
}

bool SettingsManager::WriteOrUpdateSettingsForDomain(
    const SimpleString& domain) {
  return InsertMissing(DefaultDomainSettings(), domain) &&
         SynchronizeSettingsForDomain(domain);
}

bool SettingsManager::AddDomainWithDefaultSettings(const SimpleString& domain) {
  SDIVector* domains = GetDomains();
  if (!domains) return false;
  for (unsigned int i = 0; i < domains->count; ++i) {
    if (domains->At(i)->name == domain) return true;
  }
  if (!WriteOrUpdateSettingsForDomain(domain)) return false;
  const bool listed = true;  // the name says it all
  const SettingDataItem element(domain, kSettingsDataTypeBool, &listed);
  // The list is changed in place: to store it is to write it.
  return domains->addElement(&element) &&
         SynchronizeSettingsForDomain(MasterDomain());
}

}  // namespace SASM
