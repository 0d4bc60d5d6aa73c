// The store, started on a base directory made from the fuzzer's bytes: a
// master file, files of sites, and odd things in their places.
//
// The bytes are records: a kind, a text that names a site (a size of one byte,
// then the bytes) and a content (a size of two bytes, little-endian, then the
// bytes). See Record.
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "platform/linux_file_manager.h"
#include "store/default_settings.h"
#include "store/settings_manager.h"
#include "tests/support/temporary_home.h"

using SASM::SimpleString;
namespace fs = std::filesystem;

namespace {

// A directory beside those of the store.
constexpr char kPrecious[] = "precious";

TemporaryHome& Home() {
  static TemporaryHome home;  // removed at the end, if there is an end
  return home;
}

void Write(const fs::path& file, const std::string& bytes) {
  std::error_code ignored;
  // A pipe would wait for its reader.
  if (fs::exists(fs::symlink_status(file, ignored))) return;
  fs::create_directories(file.parent_path(), ignored);
  std::ofstream(file, std::ios::binary) << bytes;
}

std::string Read(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return (std::ostringstream() << stream.rdbuf()).str();
}

// What is outside of the store's own directories: names and contents.
std::vector<std::string> Outside() {
  std::vector<std::string> found;
  for (auto entry = fs::recursive_directory_iterator(Home().Path());
       entry != fs::recursive_directory_iterator(); ++entry) {
    const fs::path path = entry->path().lexically_relative(Home().Path());
    if (path == TemporaryHome::kSettings ||
        path == TemporaryHome::kSharedObjects) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      found.push_back(path.string() + ": " + Read(entry->path()));
    } else {
      found.push_back(path.string());
    }
  }
  std::ranges::sort(found);
  return found;
}

struct Record {
  enum Kind {
    kMasterFile,
    kSiteFile,
    kStoredData,
    kPipe,            // in the place of a settings file
    kDirectory,       // likewise
    kLinkToPrecious,  // in the place of a site's directory
    kLinkedFile,      // in the place of a settings file
    kAction,          // done when the store has started
    kKindCount,
  };
  Kind kind;
  std::string site;
  std::string content;
};

class RecordReader {
 public:
  RecordReader(const std::uint8_t* data, std::size_t size)
      : next_(data), end_(data + size) {}
  bool Next(Record* record) {
    if (next_ == end_) return false;
    record->kind = static_cast<Record::Kind>(Byte() % Record::kKindCount);
    record->site = Text(Byte());
    const std::size_t low = Byte();
    record->content = Text(low | std::size_t{Byte()} << 8);
    return true;
  }

 private:
  std::uint8_t Byte() { return next_ == end_ ? std::uint8_t{0} : *next_++; }
  std::string Text(std::size_t size) {
    size = std::min(size, static_cast<std::size_t>(end_ - next_));
    std::string text(next_, next_ + size);
    next_ += size;
    return text;
  }

  const std::uint8_t* next_;
  const std::uint8_t* end_;
};

// A single directory entry, whatever the site's name is.
std::string EntryName(const std::string& site) {
  std::string name = site.substr(0, site.find('\0'));
  name.insert(name.begin(), '#');
  std::ranges::replace(name, '/', '!');
  return name;
}

void Prepare(const Record& record) {
  const fs::path sys = Home().Path() / TemporaryHome::kSettings;
  const fs::path directory = sys / EntryName(record.site);
  const fs::path file = directory / "settings.sol";
  std::error_code ignored;
  if (record.kind != Record::kLinkToPrecious &&
      record.kind != Record::kMasterFile) {
    fs::create_directories(directory, ignored);
  }
  switch (record.kind) {
    case Record::kMasterFile:
      return Write(sys / "settings.sol", record.content);
    case Record::kSiteFile:
      return Write(file, record.content);
    case Record::kStoredData:
      return Write(Home().Path() / TemporaryHome::kSharedObjects / "X7" /
                       EntryName(record.site).substr(1) / "data.sol",
                   record.content);
    case Record::kPipe:
      (void)mkfifo(file.c_str(), 0600);
      return;
    case Record::kDirectory:
      return Write(file / "inside", record.content);
    case Record::kLinkToPrecious:
      fs::create_directory_symlink(Home().Path() / kPrecious, directory,
                                   ignored);
      return;
    case Record::kLinkedFile:
      fs::create_symlink(Home().Path() / kPrecious / "settings.sol", file,
                         ignored);
      return;
    case Record::kAction:
    case Record::kKindCount:
      return;
  }
}

void Act(SASM::SettingsManager* manager, const Record& record) {
  const SimpleString site = record.site.c_str();
  SASM::SettingDataItem value("klimit", SASM::kSettingsDataTypeString, &site);
  switch (record.content.empty() ? 0 : record.content[0] & 7) {
    case 0:
      manager->AddDomainWithDefaultSettings(site);
      return;
    case 1:
      manager->SetSetting(&value, "klimit", site);
      return;
    case 2:
      manager->RemoveDomainInformation(site, true, true);
      return;
    case 3:
      manager->RemoveAllSettingsAndOrLocalStorage(true, true);
      return;
    case 4:
      manager->RemoveSettingWithKey("always", site);
      return;
    case 5:
      manager->RemoveAllSettingsAndOrLocalStorageForTimeRange(true, true, 0,
                                                              3600);
      return;
    case 6:
      manager->SetSetting(&value, "domains",
                          SASM::SettingsManager::MasterDomain());
      (void)manager->GetDomains();
      return;
    default:
      (void)manager->SizeOfSettings(site);
      (void)manager->SizeOfLocalStorage(site);
      manager->DeleteDomainStorage(site);
      return;
  }
}

// What the window does for every known site.
void TouchAllSites(SASM::SettingsManager* manager) {
  const SASM::SDIVector* domains = manager->GetDomains();
  Require(domains, "there is a list of sites");
  const bool allow = true;
  SASM::SettingDataItem item("allow", SASM::kSettingsDataTypeBool, &allow);
  for (unsigned int i = 0; i < domains->count; ++i) {
    const SimpleString& site = domains->At(i)->name;
    manager->SetSetting(&item, "allow", site);
    Require(SASM::BoolOr(manager->GetSetting("allow", site), false),
            "memory holds the change, whatever the disk says");
    (void)manager->SizeOfLocalStorage(site);
  }
}

void RequireUsableStore(LinuxFileManager* files) {
  SASM::SettingsManager manager(files);
  const SimpleString& master = SASM::SettingsManager::MasterDomain();
  for (const auto& row : SASM::DefaultMasterSettings()) {
    Require(manager.HasSetting(row.key, master), "defaults are filled in");
  }
  Require(manager.AddDomainWithDefaultSettings("next.example"),
          "a site can be added");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  for (const auto& entry : fs::directory_iterator(Home().Path())) {
    fs::remove_all(entry.path());
  }
  Write(Home().Path() / kPrecious / "settings.sol", "precious");
  Write(Home().Path() / kPrecious / "data.sol", "precious");
  Write(Home().Path() / ".orbelline/Corvane_Player/keep/settings.sol", "keep");
  fs::create_directories(Home().Path() / TemporaryHome::kSettings);
  fs::create_directories(Home().Path() / TemporaryHome::kSharedObjects);
  std::vector<Record> records;
  RecordReader reader(data, size);
  for (Record record; reader.Next(&record);) records.push_back(record);
  for (const Record& record : records) Prepare(record);
  const std::vector<std::string> outside = Outside();

  LinuxFileManager files;
  {
    SASM::SettingsManager manager(&files);
    TouchAllSites(&manager);
    for (const Record& record : records) {
      if (record.kind == Record::kAction) Act(&manager, record);
    }
    TouchAllSites(&manager);
  }
  RequireUsableStore(&files);
  Require(Outside() == outside, "nothing outside has changed");
  return 0;
}
