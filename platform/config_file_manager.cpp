#include "platform/config_file_manager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <string>
#include <utility>

#include "platform/file_descriptor.h"
#include "settings/map_keys.h"

namespace SASM {
namespace {

constexpr char kUtf8Mark[] = {'\xEF', '\xBB', '\xBF'};
constexpr char kUtf16Marks[][2] = {{'\xFE', '\xFF'}, {'\xFF', '\xFE'}};
constexpr std::size_t kSmallestFile = 4;

// Opening a pipe or device must not block, for which fopen(3) has no mode.
constexpr int kOpenWithoutWaiting = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

struct CloseFile {
  void operator()(FILE* file) const { (void)std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

// Takes over the descriptor. Closes it when it cannot become a stream.
File StreamOf(int descriptor, const char* mode) {
  if (descriptor < 0) return nullptr;
  File file(fdopen(descriptor, mode));
  if (!file) close(descriptor);
  return file;
}

File OpenForReading(const SimpleString& path) {
  if (path.IsEmpty()) return nullptr;
  File file =
      StreamOf(open(path.c_str(), O_RDONLY | kOpenWithoutWaiting), "rb");
  struct stat info;
  const bool is_regular =
      file && fstat(fileno(file.get()), &info) == 0 && S_ISREG(info.st_mode);
  return is_regular ? std::move(file) : nullptr;
}

// Empties the file last: a failure to open it must not lose its contents.
File OpenForWriting(const SimpleString& path) {
  if (path.IsEmpty()) return nullptr;
  File file =
      StreamOf(open(path.c_str(), O_WRONLY | O_CREAT | kOpenWithoutWaiting,
                    kNewFileMode),
               "wb");
  // Pipes and devices have no length to change: EINVAL.
  const bool is_emptied =
      file && (ftruncate(fileno(file.get()), 0) == 0 || errno == EINVAL);
  return is_emptied ? std::move(file) : nullptr;
}

bool IsUtf16(const char* head) {
  for (const auto& mark : kUtf16Marks) {
    if (std::memcmp(head, mark, sizeof kUtf16Marks[0]) == 0) return true;
  }
  return false;
}

// Moves to the start of the text. False when there is none to read.
bool GoToText(FILE* file) {
  char head[kSmallestFile];
  if (std::fread(head, 1, sizeof head, file) < sizeof head) return false;
  if (IsUtf16(head)) return false;
  const bool is_marked = std::memcmp(head, kUtf8Mark, sizeof kUtf8Mark) == 0;
  return std::fseek(file, is_marked ? sizeof kUtf8Mark : 0, SEEK_SET) == 0;
}

void SkipLineFeed(FILE* file) {
  const int byte = getc_unlocked(file);
  if (byte != '\n') (void)std::ungetc(byte, file);
}

// Reads one line and its end. Drops what follows a zero byte, so that a sparse
// file needs no memory. False at the end of the file; the line may then still
// hold text.
bool ReadLine(FILE* file, std::string* line) {
  line->clear();
  bool is_cut = false;
  for (;;) {
    const int byte = getc_unlocked(file);
    if (byte == EOF) return false;
    if (byte == '\n') return true;
    if (byte == '\r') {
      SkipLineFeed(file);
      return true;
    }
    if (byte == '\0') is_cut = true;
    if (!is_cut) line->push_back(static_cast<char>(byte));
  }
}

bool IsBlank(char byte) { return byte > 0 && byte <= ' '; }

}  // namespace

ConfigFileManager::ConfigFileManager(SimpleString const& path) : mPath(path) {
  const File file = OpenForReading(mPath);
  if (file && GoToText(file.get())) ProcessFile(file.get());
}

const SimpleString* ConfigFileManager::ValueForKey(
    SimpleString const& key) const {
  // The end of the dictionary is an entry too: its value stays empty.
  return &mEntries.find(key)->value;
}

void ConfigFileManager::UpdateSetting(SimpleString const& key,
                                      SimpleString const& value) {
  mEntries.insert(key, value);
}

bool ConfigFileManager::UpdateSettingsFile() const {
  const File file = OpenForWriting(mPath);
  if (file) ProcessSettingsForWrite(file.get());
  return file != nullptr;
}

StringVector* ConfigFileManager::CreateListOfAllKeys() const {
  return NewListOfKeys(mEntries);
}

char* ConfigFileManager::StripString(char* text) {
  if (!text) return nullptr;
  while (IsBlank(*text)) ++text;
  if (!*text) return nullptr;
  char* end = text + std::strlen(text);
  while (IsBlank(end[-1])) --end;
  *end = '\0';
  return text;
}

void ConfigFileManager::ProcessLine(char* line) {
  char* separator = std::strchr(line, '=');
  if (!separator) return;
  *separator = '\0';
  const char* key = StripString(line);
  const char* value = StripString(separator + 1);
  if (key && value) mEntries.insert(key, value);
}

void ConfigFileManager::ProcessFile(FILE* file) {
  std::string line;
  for (bool has_more = true; has_more;) {
    has_more = ReadLine(file, &line);
    ProcessLine(line.data());
  }
}

void ConfigFileManager::ProcessSettingsForWrite(FILE* file) const {
  // fprintf would fail for a text of 2 GiB. Errors are not reported.
  for (const auto& entry : mEntries) {
    (void)std::fputs(entry.key.c_str(), file);
    (void)std::fputc('=', file);
    (void)std::fputs(entry.value.c_str(), file);
    (void)std::fputc('\n', file);
  }
}

}  // namespace SASM
