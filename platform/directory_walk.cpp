#include "platform/directory_walk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/directory_stream.h"

namespace {

// A directory that waits to be entered.
struct Subdirectory {
  std::string name;
  FileIdentity identity;
};

FileIdentity IdentityOf(const FileDescriptor& file) {
  struct stat info;
  if (!file.IsOpen() || fstat(file.Get(), &info) != 0) return {};
  return {info.st_dev, info.st_ino};
}

FileDescriptor OpenDirectory(int parent, const char* name) {
  return OpenForReading(parent, name, O_DIRECTORY | O_NOFOLLOW);
}

}  // namespace

struct DirectoryWalk::Level {
  std::string name;
  FileDescriptor directory;
  // Known at the latest when the directory is closed while the walk is below
  // it.
  FileIdentity identity = {};
  std::vector<Subdirectory> waiting = {};
  std::size_t next_waiting = 0;
};

// A batch is written before it is read.
// cppcheck-suppress uninitMemberVar
DirectoryWalk::DirectoryWalk(Way way) : way_(way) {}
DirectoryWalk::~DirectoryWalk() = default;

bool DirectoryWalk::EnterDirectory(const FileIdentity&) { return true; }
void DirectoryWalk::LeaveDirectory(int, const char*) {}
void DirectoryWalk::LoseDirectory() {}

void DirectoryWalk::Walk(int parent, const char* name,
                         const FileIdentity& identity) {
  start_ = parent;
  Push(name, identity);
  while (waiting_count_ > 0 || (way_ == kThereAndBack && !levels_.empty())) {
    EnterNextSubdirectory();
  }
  levels_.clear();
  open_count_ = 0;
}

void DirectoryWalk::Push(const char* name, const FileIdentity& identity) {
  if (!EnterDirectory(identity)) return;
  FileDescriptor directory = OpenBelowTop(name);
  const bool is_open = directory.IsOpen();
  levels_.push_back({name, std::move(directory), identity});
  if (!is_open) return;
  if (++open_count_ == 1) farthest_open_ = levels_.size() - 1;
  if (open_count_ > kMostOpenDirectories) (void)CloseFarthest();
  ReadTop();
}

FileDescriptor DirectoryWalk::OpenBelowTop(const char* name) {
  const int parent = levels_.empty() ? start_ : levels_.back().directory.Get();
  FileDescriptor directory = OpenDirectory(parent, name);
  while (!directory.IsOpen() && errno == EMFILE && CloseFarthest()) {
    directory = OpenDirectory(parent, name);
  }
  return directory;
}

void DirectoryWalk::EnterNextSubdirectory() {
  Level& top = levels_.back();
  if (top.next_waiting == top.waiting.size()) return Pop();
  const Subdirectory next = std::move(top.waiting[top.next_waiting++]);
  --waiting_count_;
  Push(next.name.c_str(), next.identity);
}

void DirectoryWalk::Pop() {
  const bool parent_is_open = OpenParentOfTop();
  const int parent = ParentOfTop();
  const Level done = std::move(levels_.back());
  levels_.pop_back();
  if (done.directory.IsOpen()) --open_count_;
  if (parent_is_open) return LeaveDirectory(parent, done.name.c_str());
  // Only a level that has a parent can lose it.
  Level& lost = levels_.back();
  waiting_count_ -= lost.waiting.size() - lost.next_waiting;
  lost.next_waiting = lost.waiting.size();
  errno = ESTALE;
  LoseDirectory();
}

int DirectoryWalk::ParentOfTop() const {
  return levels_.size() > 1 ? levels_[levels_.size() - 2].directory.Get()
                            : start_;
}

void DirectoryWalk::ReadTop() {
  const int directory = levels_.back().directory.Get();
  for (;;) {
    const ssize_t size = getdents64(directory, batch_, sizeof batch_);
    if (size <= 0) return;
    VisitBatch(static_cast<std::size_t>(size));
  }
}

void DirectoryWalk::VisitBatch(std::size_t size) {
  Level& top = levels_.back();
  for (std::size_t offset = 0; offset < size;) {
    // The system filled the batch with such records (Linux: getdents(2)).
    const auto* entry =
        static_cast<const dirent64*>(static_cast<const void*>(batch_ + offset));
    offset += entry->d_reclen;
    if (IsSelfOrParent(entry->d_name)) continue;
    FileIdentity identity;
    if (VisitEntry(top.directory.Get(), entry->d_name, entry->d_type,
                   &identity)) {
      top.waiting.push_back({entry->d_name, identity});
      ++waiting_count_;
    }
  }
}

// Closes the open directory nearest to the start of the walk; the open ones
// are always the last of the path. False when there is only one left.
bool DirectoryWalk::CloseFarthest() {
  if (open_count_ < 2) return false;
  Level& farthest = levels_[farthest_open_];
  if (farthest.identity == FileIdentity()) {
    farthest.identity = IdentityOf(farthest.directory);
  }
  if (farthest.identity == FileIdentity()) return false;
  farthest.directory = FileDescriptor();
  ++farthest_open_;
  --open_count_;
  return true;
}

// Back through "..", to the very directory that was left and no other.
bool DirectoryWalk::OpenParentOfTop() {
  if (levels_.size() < 2) return true;
  Level& parent = levels_[levels_.size() - 2];
  if (parent.directory.IsOpen()) return true;
  FileDescriptor found = OpenPlace(levels_.back().directory.Get(), "..");
  if (!found.IsOpen() || IdentityOf(found) != parent.identity) return false;
  parent.directory = std::move(found);
  farthest_open_ = levels_.size() - 2;
  ++open_count_;
  return true;
}

std::string DirectoryWalk::PathOf(const char* name) const {
  std::string path;
  for (const Level& level : levels_) path += level.name + "/";
  return path + name;
}
