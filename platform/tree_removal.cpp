#include "platform/tree_removal.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

using SASM::SimpleString;

namespace {

constexpr char kStat[] = "RemoveFilesRecursively: stat";
constexpr char kUnlinkDirectory[] = "RemoveFilesRecursively: unlink dir";
constexpr char kUnlinkFile[] = "RemoveFilesRecursively: unlink file";

// Opens the directory `way` below `directory`, following no link from there.
FileDescriptor OpenBelow(const char* directory, std::string_view way) {
  FileDescriptor reached(open(directory, O_PATH | O_DIRECTORY | O_CLOEXEC));
  char name[NAME_MAX + 1];
  while (reached.IsOpen() && !way.empty()) {
    const std::size_t size = std::min(way.find('/'), way.size());
    if (size > NAME_MAX) return FileDescriptor();
    name[way.copy(name, size)] = '\0';
    way.remove_prefix(std::min(size + 1, way.size()));
    if (size == 0) continue;
    reached = FileDescriptor(openat(
        reached.Get(), name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  }
  return reached;
}

}  // namespace

TreeRemoval::TreeRemoval(LinuxFileManager::FilePredicate* predicate)
    : DirectoryWalk(Links::kRefuse), predicate_(predicate) {}

bool TreeRemoval::Remove(const SimpleString& path,
                         const SimpleString& trusted) {
  const std::unique_ptr<char[]> name(SimpleString::CopyString(path.c_str()));
  if (!name) return false;
  // Behind a link a "/" stands for what the link leads to.
  for (char* end = name.get() + std::strlen(name.get()) - 1;
       end > name.get() && *end == '/'; --end) {
    *end = '\0';
  }
  // Of a file one call is all; what that call says of anything else is found
  // out again, and told, by the steps below.
  if (!predicate_ &&
      (unlinkat(AT_FDCWD, name.get(), 0) == 0 || errno == ENOENT)) {
    return true;
  }
  const bool is_directory = !predicate_ && errno == EISDIR;
  Subdirectory top;
  if (is_directory || VisitEntry(AT_FDCWD, name.get(), DT_UNKNOWN, &top)) {
    RemoveTree(name.get(), trusted.c_str());
  }
  return succeeded_;
}

void TreeRemoval::RemoveTree(char* path, const char* trusted) {
  const std::size_t trusted_size = trusted ? std::strlen(trusted) : 0;
  if (trusted_size == 0 || std::strncmp(path, trusted, trusted_size) != 0 ||
      path[trusted_size] != '/') {
    return Walk(path, {});
  }
  char* name = std::strrchr(path, '/') + 1;
  FileDescriptor parent = OpenBelow(trusted, {path + trusted_size, name});
  if (!parent.IsOpen()) return Fail(kStat);
  Walk({parent.Get(), name}, path, {});
}

bool TreeRemoval::VisitEntry(int directory, const char* name,
                             unsigned char type, Subdirectory*) {
  if (type == DT_UNKNOWN || (predicate_ && type != DT_DIR)) {
    struct stat info;
    if (fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
      Fail(kStat);
      return false;
    }
    if (S_ISDIR(info.st_mode)) return true;
    if (predicate_ && !PredicateTakes(name, info)) return false;
  } else if (type == DT_DIR) {
    return true;
  }
  RemoveFile(directory, name);
  return false;
}

bool TreeRemoval::PredicateTakes(const char* name, struct stat& info) {
  const SimpleString path = PathOf(name);
  if (path.HasText()) return predicate_->test(path.c_str(), info);
  errno = ENOMEM;
  Fail(kStat);
  return false;
}

void TreeRemoval::RemoveFile(int directory, const char* name) {
  if (unlinkat(directory, name, 0) != 0) Fail(kUnlinkFile);
}

bool TreeRemoval::EnterDirectory(const Subdirectory&) { return true; }

void TreeRemoval::LeaveDirectory(int parent, const char* name,
                                 const Subdirectory&) {
  if (unlinkat(parent, name, AT_REMOVEDIR) == 0) return;
  // Entries remain: those that were spared, could not be removed, or came
  // while the removal ran.
  if (errno == ENOTEMPTY || errno == EEXIST) return;
  // A link or a file was swapped in for the directory.
  if (errno == ENOTDIR && !predicate_) return RemoveFile(parent, name);
  Fail(kUnlinkDirectory);
}

void TreeRemoval::LoseDirectory() { Fail(kStat); }

void TreeRemoval::Fail(const char* step) {
  if (errno == ENOENT) return;
  std::perror(step);
  succeeded_ = false;
}
