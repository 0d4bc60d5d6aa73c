#include "platform/directory_walk.h"

#include <fcntl.h>

#include <cerrno>
#include <cstring>
#include <new>
#include <utility>

using SASM::SimpleString;

namespace {

// Directories kept open at once. A tree this deep is walked without ever
// opening a directory twice.
constexpr unsigned int kMostOpenDirectories = 512;

bool IsSelfOrParent(const char* name) {
  return name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2]));
}

bool Identify(int descriptor, FileIdentity* identity) {
  struct stat info;
  if (fstat(descriptor, &info) != 0) return false;
  *identity = {info.st_dev, info.st_ino};
  return true;
}

bool IsDirectory(const FileDescriptor& directory,
                 const FileIdentity& expected) {
  FileIdentity identity;
  return directory.IsOpen() && Identify(directory.Get(), &identity) &&
         identity == expected;
}

// Subdirectories that wait, in one block of memory: each a Subdirectory, its
// name and a zero.
template <typename Record>
class Queue {
 public:
  Queue() = default;
  Queue(const Queue&) = delete;
  Queue& operator=(const Queue&) = delete;
  ~Queue() { delete[] bytes_; }

  [[nodiscard]] bool Append(const Record& record, const char* name) {
    const std::size_t name_size = std::strlen(name) + 1;
    const std::size_t needed = size_ + sizeof record + name_size;
    if (needed > capacity_ && !Grow(needed * 2)) return false;
    std::memcpy(bytes_ + size_, &record, sizeof record);
    std::memcpy(bytes_ + size_ + sizeof record, name, name_size);
    size_ = needed;
    return true;
  }

  // Null when nothing waits. The name lives as long as the queue.
  const char* TakeNext(Record* record) {
    if (next_ == size_) return nullptr;
    std::memcpy(record, bytes_ + next_, sizeof *record);
    const char* name = bytes_ + next_ + sizeof *record;
    next_ += sizeof *record + std::strlen(name) + 1;
    return name;
  }

  void DropAll() { next_ = size_; }

 private:
  bool Grow(std::size_t capacity) {
    char* grown = new (std::nothrow) char[capacity];
    if (!grown) return false;
    if (size_) std::memcpy(grown, bytes_, size_);
    delete[] bytes_;
    bytes_ = grown;
    capacity_ = capacity;
    return true;
  }

  char* bytes_ = nullptr;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
  std::size_t next_ = 0;
};

}  // namespace

struct DirectoryWalk::Level {
  Level* parent;
  Level* child;
  const char* name;  // in the parent's queue; of the first level the path
  Subdirectory subdirectory;
  FileDescriptor directory;
  // Recorded when the directory is closed while the walk is below it.
  FileIdentity closed;
  Queue<Subdirectory> waiting;
};

// What a batch holds is written before it is read.
// cppcheck-suppress uninitMemberVar
DirectoryWalk::DirectoryWalk(Links links) : links_(links) {}

DirectoryWalk::~DirectoryWalk() = default;

void DirectoryWalk::Walk(const Start& start, const char* path,
                         const Subdirectory& top) {
  start_ = start;
  if (!Push(path, top)) return LoseDirectory();
  while (top_) EnterNextSubdirectory();
}

bool DirectoryWalk::Push(const char* name, const Subdirectory& subdirectory) {
  auto* level = new (std::nothrow)
      Level{top_, nullptr, name, subdirectory, FileDescriptor(), {}, {}};
  if (!level) return false;
  level->directory = OpenBelowTop(name);
  (top_ ? top_->child : first_) = level;
  top_ = level;
  if (!level->directory.IsOpen()) return true;
  if (++open_count_ == 1) farthest_open_ = level;
  if (open_count_ > kMostOpenDirectories) (void)CloseFarthest();
  ReadTop();
  return true;
}

FileDescriptor DirectoryWalk::OpenBelowTop(const char* name) {
  const int parent = top_ ? top_->directory.Get() : start_.parent;
  if (!top_) name = start_.name;
  FileDescriptor directory = Open(parent, name);
  while (!directory.IsOpen() && errno == EMFILE && CloseFarthest()) {
    directory = Open(parent, name);
  }
  return directory;
}

void DirectoryWalk::EnterNextSubdirectory() {
  Subdirectory subdirectory;
  const char* name = top_->waiting.TakeNext(&subdirectory);
  if (!name) return Pop();
  if (EnterDirectory(subdirectory) && !Push(name, subdirectory)) {
    LoseDirectory();
  }
}

void DirectoryWalk::Pop() {
  Level* done = top_;
  const bool was_open = done->directory.IsOpen();
  const bool parent_is_open = OpenParentOfTop();
  done->directory = FileDescriptor();
  if (was_open) --open_count_;
  top_ = done->parent;
  (top_ ? top_->child : first_) = nullptr;
  if (parent_is_open) {
    LeaveDirectory(top_ ? top_->directory.Get() : start_.parent,
                   top_ ? done->name : start_.name, done->subdirectory);
  } else {
    // Only a level that has a parent can lose it.
    top_->waiting.DropAll();  // NOLINT(clang-analyzer-core.CallAndMessage)
    errno = ESTALE;
    LoseDirectory();
  }
  delete done;
}

void DirectoryWalk::ReadTop() {
  const int directory = top_->directory.Get();
  for (;;) {
    const ssize_t size = getdents64(directory, batch_, sizeof batch_);
    if (size <= 0) return;
    VisitBatch(static_cast<std::size_t>(size));
  }
}

void DirectoryWalk::VisitBatch(std::size_t size) {
  const int directory = top_->directory.Get();
  for (std::size_t offset = 0; offset < size;) {
    // The system filled the batch with such records (Linux: getdents(2)).
    const auto* entry =
        static_cast<const dirent64*>(static_cast<const void*>(batch_ + offset));
    offset += entry->d_reclen;
    if (IsSelfOrParent(entry->d_name)) continue;
    Subdirectory subdirectory;
    if (VisitEntry(directory, entry->d_name, entry->d_type, &subdirectory) &&
        !top_->waiting.Append(subdirectory, entry->d_name)) {
      errno = ENOMEM;
      LoseDirectory();
    }
  }
}

// Closes the open directory nearest to the start of the walk; the open ones
// are always the last of the path. False when there is only one left.
bool DirectoryWalk::CloseFarthest() {
  if (open_count_ < 2) return false;
  Level* farthest = farthest_open_;
  farthest->closed = farthest->subdirectory.identity;
  if (farthest->closed == FileIdentity() &&
      !Identify(farthest->directory.Get(), &farthest->closed)) {
    return false;
  }
  farthest->directory = FileDescriptor();
  farthest_open_ = farthest->child;
  --open_count_;
  return true;
}

// Back up the way the walk came: through "..", or, where a link led here, by
// name from the start. Only the very directory that was left will do.
bool DirectoryWalk::OpenParentOfTop() {
  Level* parent = top_->parent;
  if (!parent || parent->directory.IsOpen()) return true;
  FileDescriptor found = Open(top_->directory.Get(), "..");
  if (!IsDirectory(found, parent->closed)) found = OpenFromPath(*parent);
  if (!IsDirectory(found, parent->closed)) return false;
  parent->directory = std::move(found);
  farthest_open_ = parent;
  ++open_count_;
  return true;
}

FileDescriptor DirectoryWalk::OpenFromPath(const Level& target) const {
  FileDescriptor directory = Open(start_.parent, start_.name);
  for (const Level* level = first_; level != &target && directory.IsOpen();
       level = level->child) {
    directory = Open(directory.Get(), level->child->name);
  }
  return directory;
}

FileDescriptor DirectoryWalk::Open(int parent, const char* name) const {
  const int no_links = links_ == Links::kRefuse ? O_NOFOLLOW : 0;
  return OpenForReading(parent, name, O_DIRECTORY | no_links);
}

bool DirectoryWalk::IsInside(const FileIdentity& identity) const {
  for (const Level* level = top_; level; level = level->parent) {
    if (level->subdirectory.identity == identity) return true;
  }
  return false;
}

SimpleString DirectoryWalk::PathOf(const char* name) const {
  SimpleString path;
  for (const Level* level = first_; level; level = level->child) {
    path.AppendString(level->name);
    path.AppendString("/");
  }
  path.AppendString(name);
  return path;
}
