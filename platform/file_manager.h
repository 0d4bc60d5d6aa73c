// What the settings store needs of a file system.
#pragma once

#include <cstdint>

#include "settings/string_vector.h"

namespace SASM {

// All file-system work of the store and of the licence data reset goes through
// this interface. Paths are absolute. A failure is a false result and a line
// on standard error that names the step and the system's error.
class FileManager {
 public:
  virtual ~FileManager() = default;

  // Removes a file, or a directory with everything in it. Symbolic links are
  // removed as links and never followed. A link on the way to the entry, below
  // the data directory that the path begins with, is not followed either: the
  // result is then false. True also when nothing is there, and for the empty
  // path. Goes on after a failure and returns false at the end.
  virtual bool RemoveFileAtPath(const SimpleString& path) = 0;

  // Removes the files under `path` whose age in seconds lies strictly between
  // the bounds, and every directory that is then empty, `path` included.
  virtual bool RemoveFilesInDirectoryInDateRange(
      const SimpleString& path, unsigned long lower_age_seconds,
      unsigned long upper_age_seconds) = 0;

  // Bytes of a file, or of a directory tree: the sizes that stat reports for
  // the directories and for everything in them, links followed; never more
  // than 2^64 - 1. 0 when nothing is there or it cannot be examined: errno
  // then says why.
  [[nodiscard]] virtual std::uint64_t SizeOfFileAtPath(
      const SimpleString& path) const = 0;

  // Makes the directory `path`/`name` and every missing one above it, with
  // mode 0700. What exists is kept, whatever it is. Links on the way count as
  // for RemoveFileAtPath.
  virtual bool CreateDirectoryAtPath(const SimpleString& path,
                                     const SimpleString& name) = 0;

  // "/" on every system that has a manager so far.
  [[nodiscard]] virtual const SimpleString& GetPathSeparator() const = 0;

  // The user's data directories. Empty when the user has no home directory:
  // nothing is then kept on disk.
  [[nodiscard]] virtual const SimpleString& GetAssetCacheDirectory() const = 0;
  [[nodiscard]] virtual const SimpleString& GetUserSettingsBaseDirectory()
      const = 0;
  [[nodiscard]] virtual const SimpleString& GetDRMLicenseDataDirectory()
      const = 0;

  // The names in a directory except "." and "..", in natural order. Empty when
  // it cannot be opened: errno then says why, and is 0 after a listing. Links
  // on the way to it, and in its place, count as for RemoveFileAtPath. The
  // caller owns the list.
  [[nodiscard]] virtual SortableStringVector* CreateNewListOfDirectoryContents(
      const SimpleString& path) const = 0;
};

}  // namespace SASM
