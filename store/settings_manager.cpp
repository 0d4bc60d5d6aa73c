#include "store/settings_manager.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

#include "platform/open_below.h"
#include "settings/map_keys.h"
#include "settings/settings_reader.h"
#include "settings/settings_writer.h"
#include "store/default_settings.h"
#include "store/list_changes.h"
#include "store/setting_keys.h"
#include "store/settings_file.h"

namespace SASM {
namespace {

// Creates the directory itself, as the last name of a directory chain.
constexpr char kThisDirectory[] = ".";

// A backslash and everything that is not printable ASCII as "\xNN": a path
// holds names that somebody else has chosen.
std::string Printable(const char* path) {
  std::string text;
  for (; *path; ++path) {
    char escaped[5] = {*path};
    if (*path < ' ' || *path > '~' || *path == '\\') {
      std::snprintf(
          escaped, sizeof escaped, "\\x%02X",
          static_cast<unsigned int>(static_cast<unsigned char>(*path)));
    }
    text += escaped;
  }
  return text;
}

}  // namespace

SettingsManager::SettingsManager(FileManager* file_manager)
    : mLayout(file_manager), mFileManager(file_manager) {
  LoadMasterSettings();
}

SettingsManager::~SettingsManager() { DeleteAllDictionaries(); }

const SimpleString& SettingsManager::MasterDomain() {
  return MasterDomainName();
}

SettingsDictionary* SettingsManager::LoadedDictionary(
    const SimpleString& domain) const {
  const auto found = mDomainSettings.find(domain);
  return found == mDomainSettings.end() ? nullptr : found->value;
}

SettingsDictionary* SettingsManager::EnsureSettingsAreLoadedForDomain(
    const SimpleString& domain) {
  SettingsDictionary* loaded = LoadedDictionary(domain);
  if (loaded && !IsUnread(domain)) return loaded;
  if (!(domain == MasterDomain())) return LoadSiteSettings(domain);
  LoadMasterSettings();
  return LoadedDictionary(domain);
}

SettingsDictionary* SettingsManager::DictionaryToChange(
    const SimpleString& domain) {
  SettingsDictionary* dictionary = EnsureSettingsAreLoadedForDomain(domain);
  return IsUnread(domain) ? nullptr : dictionary;
}

SettingsDictionary* SettingsManager::LoadSiteSettings(
    const SimpleString& site) {
  if (!IsSiteName(site)) return nullptr;
  std::unique_ptr<SettingsDictionary> read;
  if (!ReadDictionary(site, &read)) return StandIn(site);
  if (read) return SetDictionary(site, std::move(read));
  SettingsDictionary* empty =
      SetDictionary(site, std::make_unique<SettingsDictionary>());
  SynchronizeSettingsForDomain(site);
  return empty;
}

bool SettingsManager::ReadDictionary(
    const SimpleString& domain,
    std::unique_ptr<SettingsDictionary>* dictionary) {
  const SimpleString file = mLayout.SettingsFileOf(domain);
  SimpleString* name = nullptr;
  errno = 0;
  if (!file.IsEmpty()) {
    dictionary->reset(GetNewSettingsDataFromFile(file, &name));
  }
  const int error = *dictionary ? 0 : errno;
  delete name;
  if (!LeavesContentUnknown(error)) {
    mUnread.erase(domain.c_str());
    return true;
  }
  if (mUnread.insert(domain.c_str()).second) {
    std::fprintf(stderr, "SMSettingsManager: %s: %s\n",
                 Printable(file.c_str()).c_str(), std::strerror(error));
  }
  return false;
}

bool SettingsManager::IsUnread(const SimpleString& domain) const {
  return !mUnread.empty() && mUnread.contains(domain.c_str());
}

SettingsDictionary* SettingsManager::StandIn(const SimpleString& domain) {
  if (SettingsDictionary* standing_in = LoadedDictionary(domain)) {
    return standing_in;
  }
  auto defaults = std::make_unique<SettingsDictionary>();
  if (domain == MasterDomain()) {
    InsertMissingDefaults(DefaultMasterSettings(), *defaults, defaults.get());
    defaults->insert(kDomains, SettingDataItem(kDomains, new SDIVector));
  } else {
    InsertMissingDefaults(DefaultDomainSettings(),
                          *EnsureSettingsAreLoadedForDomain(MasterDomain()),
                          defaults.get());
  }
  return SetDictionary(domain, std::move(defaults));
}

SettingsDictionary* SettingsManager::SetDictionary(
    const SimpleString& domain,
    std::unique_ptr<SettingsDictionary> dictionary) {
  SettingsDictionary*& held = mDomainSettings[domain];
  if (held) mReplaced.emplace_back(held);
  return held = dictionary.release();
}

void SettingsManager::DeleteAllDictionaries() {
  for (auto& entry : mDomainSettings) delete entry.value;
  mDomainSettings.clear();
  mReplaced.clear();
  mUnread.clear();
}

SettingsDictionary* SettingsManager::GetNewSettingsDataFromFile(
    const SimpleString& path, SimpleString** name) {
  FileImage image;
  if (!ReadFileImage(path, &image)) return nullptr;
  SettingsDictionary* dictionary =
      SMImplementation::SettingsReader(image.bytes.get(), image.size)
          .GetNewSettingsData(name);
  errno = 0;  // a message about the file may not have reached anybody
  return dictionary;
}

bool SettingsManager::SynchronizeSettingsForDomain(const SimpleString& domain) {
  if (!mLayout.IsOnDisk()) return true;
  return DictionaryToChange(domain) && WriteFileOf(domain);
}

bool SettingsManager::WriteFileOf(const SimpleString& domain) {
  if (!mLayout.IsOnDisk()) return true;
  unsigned char* data = nullptr;
  unsigned long size = 0;
  SMImplementation::SettingsWriter(this, domain)
      .GetNewSettingsWithName(mLayout.DictionaryNameOf(domain), &data, size);
  const std::unique_ptr<unsigned char[]> image(data);
  const FileDescriptor directory = OpenDirectoryOf(domain);
  if (!image || !directory.IsOpen()) return false;
  const auto replace = [&] {
    return ReplaceFile(directory.Get(), StoreLayout::kSettingsFileName,
                       {image.get(), size});
  };
  if (replace()) return true;
  // A directory in the file's place.
  return errno == EISDIR && DeleteDomainSettingsFile(domain, true) && replace();
}

FileDescriptor SettingsManager::OpenDirectoryOf(const SimpleString& domain) {
  const SimpleString path = mLayout.DirectoryOf(domain);
  const auto open = [&] {
    return OpenBelow(mLayout.BaseDirectory().c_str(), path.c_str());
  };
  FileDescriptor directory = open();
  if (directory.IsOpen() || errno != ENOENT) return directory;
  (void)mFileManager->CreateDirectoryAtPath(path, kThisDirectory);
  return open();
}

bool SettingsManager::DeleteDomainSettingsFile(const SimpleString& domain,
                                               bool file_only) {
  if (!mLayout.IsOnDisk()) return true;
  const bool is_file = file_only || domain == MasterDomain();
  const SimpleString path =
      is_file ? mLayout.SettingsFileOf(domain) : mLayout.DirectoryOf(domain);
  return !path.IsEmpty() && mFileManager->RemoveFileAtPath(path);
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
  SettingsDictionary* dictionary = DictionaryToChange(domain);
  if (!dictionary) return false;
  dictionary->insert(key, *item);
  return WriteFileOf(domain);
}

bool SettingsManager::ChangeSettings(
    const SimpleString& domain,
    const std::function<void(SettingsDictionary&)>& change) {
  SettingsDictionary* dictionary = DictionaryToChange(domain);
  if (!dictionary) return false;
  change(*dictionary);
  return WriteFileOf(domain);
}

bool SettingsManager::RemoveSettingWithKey(const SimpleString& key,
                                           const SimpleString& domain) {
  SettingsDictionary* dictionary = DictionaryToChange(domain);
  if (!dictionary) return false;
  const auto found = dictionary->find(key);
  if (found != dictionary->end()) dictionary->erase(found);
  return WriteFileOf(domain);
}

StringVector* SettingsManager::GetNewSettingKeys(const SimpleString& domain) {
  const SettingsDictionary* dictionary =
      EnsureSettingsAreLoadedForDomain(domain);
  return dictionary ? NewListOfKeys(*dictionary) : nullptr;
}

bool SettingsManager::LoadMasterSettingsFromDisk() {
  DeleteAllDictionaries();
  return LoadMasterSettings();
}

bool SettingsManager::LoadMasterSettings() {
  std::unique_ptr<SettingsDictionary> read;
  if (!ReadDictionary(MasterDomain(), &read)) {
    StandIn(MasterDomain());
    return false;
  }
  if (mListChanges) mListChanges->Forget();
  const bool is_new = !read;
  SetDictionary(MasterDomain(), is_new ? std::make_unique<SettingsDictionary>()
                                       : std::move(read));
  if (is_new) SynchronizeSettingsForDomain(MasterDomain());
  WriteOrUpdateDefaultMasterSettings();
  if (!StoredDomains()) StoreEmptyDomains();
  VerifyDomainsList();
  return true;
}

bool SettingsManager::WriteOrUpdateDefaultMasterSettings() {
  return InsertMissing(DefaultMasterSettings(), MasterDomain()) &&
         WriteFileOf(MasterDomain());
}

bool SettingsManager::InsertMissing(std::span<const DefaultSetting> rows,
                                    const SimpleString& domain) {
  SettingsDictionary* dictionary = DictionaryToChange(domain);
  if (!dictionary) return false;
  InsertMissingDefaults(rows, *EnsureSettingsAreLoadedForDomain(MasterDomain()),
                        dictionary);
  return true;
}

bool SettingsManager::WriteOrUpdateSettingsForDomain(
    const SimpleString& domain) {
  return InsertMissing(DefaultDomainSettings(), domain) && WriteFileOf(domain);
}

}  // namespace SASM
