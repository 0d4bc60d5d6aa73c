#include "platform/link_check.h"

#include <sys/stat.h>

#include <cstring>
#include <memory>

using SASM::SimpleString;

bool LeadsThroughLink(const SimpleString& directory, const SimpleString& path) {
  if (!directory.HasText() || !path.HasText()) return false;
  const std::unique_ptr<char[]> prefix(SimpleString::CopyString(path.c_str()));
  if (!prefix) return true;  // not to be found out
  char* slash = prefix.get() + std::strlen(directory.c_str());
  while ((slash = std::strchr(slash + 1, '/'))) {
    *slash = '\0';
    struct stat info;
    if (lstat(prefix.get(), &info) == 0 && S_ISLNK(info.st_mode)) return true;
    *slash = '/';
  }
  return false;
}
