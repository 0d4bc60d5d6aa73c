#include "platform/tree_removal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr char kStat[] = "RemoveFilesRecursively: stat";
constexpr char kUnlinkDirectory[] = "RemoveFilesRecursively: unlink dir";
constexpr char kUnlinkFile[] = "RemoveFilesRecursively: unlink file";

}  // namespace

TreeRemoval::TreeRemoval(LinuxFileManager::FilePredicate* predicate)
    : DirectoryWalk(Links::kRefuse), predicate_(predicate) {}

bool TreeRemoval::Remove(const char* path) {
  Subdirectory top;
  if (VisitEntry(AT_FDCWD, path, DT_UNKNOWN, &top)) Walk(path, top);
  return succeeded_;
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
  const SASM::SimpleString path = PathOf(name);
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
