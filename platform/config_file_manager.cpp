#include "platform/config_file_manager.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

namespace SASM {
namespace {

constexpr std::size_t kFirstLineCapacity = 1024;
constexpr char kUtf8Mark[] = {'\xEF', '\xBB', '\xBF'};
constexpr char kUtf16Marks[][2] = {{'\xFE', '\xFF'}, {'\xFF', '\xFE'}};
constexpr std::size_t kSmallestFile = 4;

// What fopen(3) gives a new file, less the process's mask.
constexpr mode_t kNewFileMode = 0666;
// What fopen(3) lacks: the opening of a pipe or a device waits for nobody.
constexpr int kOpenWithoutWaiting = O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

struct CloseFile {
  void operator()(FILE* file) const { (void)std::fclose(file); }
};
using File = std::unique_ptr<FILE, CloseFile>;

// Takes the descriptor over, and closes it when there can be no stream.
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

// Empties the file last, so that no failure to open it costs its contents.
File OpenForWriting(const SimpleString& path) {
  if (path.IsEmpty()) return nullptr;
  File file =
      StreamOf(open(path.c_str(), O_WRONLY | O_CREAT | kOpenWithoutWaiting,
                    kNewFileMode),
               "wb");
  // Pipes and devices have no length to cut: EINVAL.
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

// Leaves the file where its text begins. False when none can be read.
bool GoToText(FILE* file) {
  char head[kSmallestFile];
  if (std::fread(head, 1, sizeof head, file) < sizeof head) return false;
  if (IsUtf16(head)) return false;
  const bool is_marked = std::memcmp(head, kUtf8Mark, sizeof kUtf8Mark) == 0;
  return std::fseek(file, is_marked ? sizeof kUtf8Mark : 0, SEEK_SET) == 0;
}

// The text of one line after the other, in one buffer that doubles.
class LineBuffer {
 public:
  void Clear() {
    size_ = 0;
    is_cut_ = is_lost_ = false;
  }

  // A zero byte would end the text when the line is taken apart: what comes
  // after it is not kept, so that a file of holes costs no memory.
  void Append(char byte) {
    if (byte == '\0') is_cut_ = true;
    if (is_cut_ || is_lost_) return;
    if (size_ + 1 >= capacity_ && !Grow()) {
      is_lost_ = true;
      return;
    }
    bytes_[size_++] = byte;
  }

  // Null when memory was too short to hold the line, and for an empty line.
  char* Text() {
    if (is_lost_ || size_ == 0) return nullptr;
    bytes_[size_] = '\0';
    return bytes_.get();
  }

 private:
  bool Grow() {
    const std::size_t capacity = capacity_ ? capacity_ * 2 : kFirstLineCapacity;
    std::unique_ptr<char[]> grown(new (std::nothrow) char[capacity]);
    if (!grown) return false;
    if (size_) std::memcpy(grown.get(), bytes_.get(), size_);
    bytes_ = std::move(grown);
    capacity_ = capacity;
    return true;
  }

  std::unique_ptr<char[]> bytes_;
  std::size_t capacity_ = 0;
  std::size_t size_ = 0;
  bool is_cut_ = false;
  bool is_lost_ = false;
};

void SkipLineFeed(FILE* file) {
  const int byte = getc_unlocked(file);
  if (byte != '\n') (void)std::ungetc(byte, file);
}

// Takes one line and its end. False at the end of the file, which may still
// have given a line.
bool ReadLine(FILE* file, LineBuffer* line) {
  line->Clear();
  for (;;) {
    const int byte = getc_unlocked(file);
    if (byte == EOF) return false;
    if (byte == '\n') return true;
    if (byte == '\r') {
      SkipLineFeed(file);
      return true;
    }
    line->Append(static_cast<char>(byte));
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
  // For when memory was too short for the dictionary itself.
  static const SimpleString kNoValue;
  // The end of the dictionary is an entry too, and stays empty.
  const auto entry = mEntries.find(key);
  return mEntries.IsUsable() ? &entry->value : &kNoValue;
}

void ConfigFileManager::UpdateSetting(SimpleString const& key,
                                      SimpleString const& value) {
  Insert(key, value);
}

bool ConfigFileManager::UpdateSettingsFile() const {
  const File file = OpenForWriting(mPath);
  if (file) ProcessSettingsForWrite(file.get());
  return file != nullptr;
}

StringVector* ConfigFileManager::CreateListOfAllKeys() const {
  std::unique_ptr<StringVector> keys(new (std::nothrow) StringVector);
  if (!keys) return nullptr;
  for (const auto& entry : mEntries) {
    if (!keys->addElement(&entry.key)) return nullptr;
  }
  return keys.release();
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
  if (key && value) Insert(key, value);
}

void ConfigFileManager::Insert(SimpleString key, SimpleString value) {
  if (value.HasText()) mEntries.insert(std::move(key), std::move(value));
}

void ConfigFileManager::ProcessFile(FILE* file) {
  LineBuffer line;
  for (bool has_more = true; has_more;) {
    has_more = ReadLine(file, &line);
    if (char* text = line.Text()) ProcessLine(text);
  }
}

void ConfigFileManager::ProcessSettingsForWrite(FILE* file) const {
  // Not one fprintf, which gives up on a text of 2 GiB. The caller takes no
  // notice of errors.
  for (const auto& entry : mEntries) {
    (void)std::fputs(entry.key.c_str(), file);
    (void)std::fputc('=', file);
    (void)std::fputs(entry.value.c_str(), file);
    (void)std::fputc('\n', file);
  }
}

}  // namespace SASM
