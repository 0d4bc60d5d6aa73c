// A configuration file that is read, written and read again.
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstring>
#include <map>
#include <memory>
#include <string>

#include "fuzz/fuzz_target.h"
#include "platform/config_file_manager.h"

using SASM::ConfigFileManager;
using SASM::SimpleString;
using Entries = std::map<std::string, std::string>;

namespace {

// A file in memory that has a path.
class MemoryFile {
 public:
  MemoryFile() : file_(memfd_create("config", MFD_CLOEXEC)) {
    Require(file_ >= 0, "there is a file");
    path_ = "/proc/self/fd/" + std::to_string(file_);
  }
  ~MemoryFile() { close(file_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  void Fill(const std::uint8_t* data, std::size_t size) const {
    Require(write(file_, data, size) == static_cast<ssize_t>(size), "filled");
  }
  [[nodiscard]] SimpleString Path() const { return path_.c_str(); }

 private:
  int file_;
  std::string path_;
};

Entries EntriesOf(const ConfigFileManager& config) {
  Entries entries;
  const std::unique_ptr<SASM::StringVector> keys(config.CreateListOfAllKeys());
  Require(keys != nullptr, "there is a list");
  for (unsigned int i = 0; i < keys->count; ++i) {
    const SimpleString key = keys->TextAt(i);
    const SimpleString* value = config.ValueForKey(key);
    Require(!key.IsEmpty() && !value->IsEmpty(), "no entry is empty");
    Require(!std::strpbrk(key.c_str(), "=\r\n"), "a key is a key");
    Require(!std::strpbrk(value->c_str(), "\r\n"), "a value is of one line");
    entries[key.c_str()] = value->c_str();
  }
  Require(entries.size() == keys->count, "every key is listed once");
  return entries;
}

// A key may begin with bytes that are a byte-order mark in the first line.
bool BeginsWithMark(const Entries& entries) {
  for (const auto& [key, value] : entries) {
    for (const char* mark : {"\xEF\xBB\xBF", "\xFE\xFF", "\xFF\xFE"}) {
      if (key.starts_with(mark)) return true;
    }
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const MemoryFile file;
  file.Fill(data, size);
  const ConfigFileManager config(file.Path());
  const Entries entries = EntriesOf(config);
  Require(config.UpdateSettingsFile(), "it can be written");
  const Entries again = EntriesOf(ConfigFileManager(file.Path()));
  // The shortest file, "a=b" and a line feed, has the four bytes needed.
  Require(again == entries || BeginsWithMark(entries), "all that is written");
  return 0;
}
