// An owned directory stream.
#pragma once

#include <dirent.h>

#include <memory>
#include <string_view>

#include "platform/file_descriptor.h"

// True for "." and "..", which every directory lists.
[[nodiscard]] constexpr bool IsSelfOrParent(std::string_view name) {
  return name == "." || name == "..";
}

struct CloseDirectory {
  void operator()(DIR* directory) const { (void)closedir(directory); }
};

// Null when the directory could not be opened; errno says why.
using DirectoryStream = std::unique_ptr<DIR, CloseDirectory>;

// Opens a directory to list its entries. `parent` and `path` are those of
// openat(2). Where the system permits it, the directory keeps its time of last
// access.
[[nodiscard]] inline DirectoryStream OpenDirectoryStream(int parent,
                                                         const char* path) {
  FileDescriptor descriptor = OpenForReading(parent, path, O_DIRECTORY);
  if (!descriptor.IsOpen()) return nullptr;
  DirectoryStream stream(fdopendir(descriptor.Get()));
  if (stream) (void)descriptor.Release();  // closedir closes it
  return stream;
}
