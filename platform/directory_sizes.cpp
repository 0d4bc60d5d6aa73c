#include "platform/directory_sizes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <utility>

namespace {

// So many waiting directories are kept open; of more only the path is kept.
constexpr std::size_t kMostOpenRoots = 1;

bool IsLink(int directory, const char* name, unsigned char type) {
  if (type != DT_UNKNOWN) return type == DT_LNK;
  struct stat info;
  return fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) == 0 &&
         S_ISLNK(info.st_mode);
}

// The path of an open file without a link on it; empty when the system does
// not give it (Linux: proc_pid_fd(5)).
std::string PathOfOpenFile(int file) {
  const std::string entry = "/proc/self/fd/" + std::to_string(file);
  char path[PATH_MAX];
  const ssize_t size = readlink(entry.c_str(), path, sizeof path);
  return size > 0 ? std::string(path, static_cast<std::size_t>(size)) : "";
}

}  // namespace

// A directory that waits to be read: open, or else by its path.
struct DirectorySizes::Root {
  FileDescriptor place;
  std::string path;
  FileIdentity identity;
};

DirectorySizes::DirectorySizes() : DirectoryWalk(kThere) {}
DirectorySizes::~DirectorySizes() = default;

DirectorySizes::Directory* DirectorySizes::Read(int directory, const char* path,
                                                const FileIdentity& identity) {
  const auto [entry, is_new] = directories_.try_emplace(identity);
  if (is_new) {
    // The walk does not follow a link in its last component, which is ".".
    Walk(directory, (std::string(path) + "/.").c_str(), identity);
    ReadAllRoots();
  }
  return &entry->second;
}

void DirectorySizes::ReadLater(int directory, const char* name,
                               const FileIdentity& identity) {
  Root root = {OpenPlace(directory, name), {}, identity};
  while (!root.place.IsOpen() && errno == EMFILE && CloseFarthest()) {
    root.place = OpenPlace(directory, name);
  }
  if (!root.place.IsOpen()) return;
  if (open_roots_ < kMostOpenRoots) {
    ++open_roots_;
  } else {
    root.path = PathOfOpenFile(root.place.Get());
    root.place = FileDescriptor();
  }
  roots_.push_back(std::move(root));
}

void DirectorySizes::ReadAllRoots() {
  while (!roots_.empty()) {
    Root root = std::move(roots_.back());
    roots_.pop_back();
    if (root.place.IsOpen()) {
      --open_roots_;
    } else {
      root.place = OpenPlace(AT_FDCWD, root.path.c_str());
    }
    if (root.place.IsOpen()) Walk(root.place.Get(), ".", root.identity);
  }
}

bool DirectorySizes::EnterDirectory(const FileIdentity& identity) {
  current_ = &directories_.find(identity)->second;
  return true;
}

bool DirectorySizes::VisitEntry(int directory, const char* name,
                                unsigned char type, FileIdentity* identity) {
  struct stat info;
  if (fstatat(directory, name, &info, 0) != 0) return false;
  current_->entries_bytes = AddSizes(current_->entries_bytes,
                                     static_cast<std::uint64_t>(info.st_size));
  if (!S_ISDIR(info.st_mode)) return false;
  *identity = {info.st_dev, info.st_ino};
  const auto [entry, is_new] = directories_.try_emplace(*identity);
  const bool is_link = IsLink(directory, name, type);
  current_->subdirectories.push_back({&entry->second, is_link});
  if (is_new && is_link) ReadLater(directory, name, *identity);
  return is_new && !is_link;
}

std::uint64_t AddSizes(std::uint64_t a, std::uint64_t b) {
  std::uint64_t sum = 0;
  return __builtin_add_overflow(a, b, &sum) ? UINT64_MAX : sum;
}
