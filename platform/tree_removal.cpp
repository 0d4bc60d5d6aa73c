#include "platform/tree_removal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace {

constexpr char kUnlinkDirectory[] = "RemoveFilesRecursively: unlink dir";
constexpr char kUnlinkFile[] = "RemoveFilesRecursively: unlink file";

}  // namespace

TreeRemoval::TreeRemoval(FilePredicate* predicate)
    : DirectoryWalk(kThereAndBack), predicate_(predicate) {}

bool TreeRemoval::Remove(int directory, const char* name,
                         std::string directory_path) {
  directory_path_ = std::move(directory_path);
  // Common case: a directory of which everything goes.
  FileIdentity unused;
  if (!predicate_ || VisitEntry(directory, name, DT_UNKNOWN, &unused)) {
    Walk(directory, name);
  }
  return succeeded_;
}

bool TreeRemoval::VisitEntry(int directory, const char* name,
                             unsigned char type, FileIdentity*) {
  if (type == DT_UNKNOWN || (predicate_ && type != DT_DIR)) {
    struct stat info;
    if (fstatat(directory, name, &info, AT_SYMLINK_NOFOLLOW) != 0) {
      Fail(kLookStep);
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
  const std::string path = directory_path_ + "/" + PathOf(name);
  return predicate_->test(path.c_str(), info);
}

void TreeRemoval::RemoveFile(int directory, const char* name) {
  if (unlinkat(directory, name, 0) != 0) Fail(kUnlinkFile);
}

void TreeRemoval::LeaveDirectory(int parent, const char* name) {
  if (unlinkat(parent, name, AT_REMOVEDIR) == 0) return;
  if (errno == ENOENT) return;  // nothing was there
  // Entries remain: those that were spared, could not be removed, or came
  // while the removal ran.
  if (errno == ENOTEMPTY || errno == EEXIST) return;
  const int error = errno;
  struct stat info;
  if (!predicate_ && fstatat(parent, name, &info, AT_SYMLINK_NOFOLLOW) == 0 &&
      !S_ISDIR(info.st_mode)) {
    return RemoveFile(parent, name);  // no directory, or one no more
  }
  errno = error;
  Fail(kUnlinkDirectory);
}

void TreeRemoval::LoseDirectory() { Fail(kLookStep); }

void TreeRemoval::Fail(const char* step) {
  if (errno == ENOENT) return;
  std::perror(step);
  succeeded_ = false;
}
