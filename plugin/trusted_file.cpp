#include "plugin/trusted_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <memory>

namespace {

struct Free {
  void operator()(char* text) const { std::free(text); }
};

bool BelongsToRootOrUser(const struct stat& info) {
  return info.st_uid == 0 || info.st_uid == geteuid();
}

bool IsWritableByOthers(const struct stat& info) {
  return (info.st_mode & (S_IWGRP | S_IWOTH)) != 0;
}

bool IsTrustedFile(const char* path) {
  struct stat info;
  return lstat(path, &info) == 0 && S_ISREG(info.st_mode) &&
         BelongsToRootOrUser(info) && !IsWritableByOthers(info);
}

bool IsTrustedDirectory(const char* path) {
  struct stat info;
  return lstat(path, &info) == 0 && S_ISDIR(info.st_mode) &&
         BelongsToRootOrUser(info) &&
         (!IsWritableByOthers(info) || (info.st_mode & S_ISVTX) != 0);
}

// `path` is absolute and without links.
bool AreDirectoriesAboveTrusted(std::string path) {
  while (path != "/") {
    const std::size_t separator = path.rfind('/');
    path.resize(separator == 0 ? 1 : separator);
    if (!IsTrustedDirectory(path.c_str())) return false;
  }
  return true;
}

}  // namespace

std::string TrustedFile(const char* path) {
  if (*path != '/') return {};
  const std::unique_ptr<char, Free> resolved(realpath(path, nullptr));
  if (!resolved || !IsTrustedFile(resolved.get())) return {};
  std::string file = resolved.get();
  return AreDirectoriesAboveTrusted(file) ? file : std::string();
}
