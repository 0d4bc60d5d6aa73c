// The file manager of a POSIX system.
#pragma once

#include <sys/stat.h>

#include "platform/file_manager.h"

// Holds no state: the data directories are worked out once per process, with
// the environment of the first call, and shared by every instance.
class LinuxFileManager : public SASM::FileManager {
 public:
  // Decides which files a removal takes.
  class FilePredicate {
   public:
    virtual ~FilePredicate() = default;
    // True to remove the file. `path` is its full path, `info` what the
    // system reports of it, of a symbolic link about the link itself.
    virtual bool test(char const* path, struct stat& info) = 0;
  };

  // Takes the files whose age lies strictly between two bounds. The age is
  // counted back from the moment the predicate is built; a file of the future
  // has a negative one.
  class FileMTimePredicate : public FilePredicate {
   public:
    FileMTimePredicate(unsigned long lower_age_seconds,
                       unsigned long upper_age_seconds);
    bool test(char const* path, struct stat& info) override;

   private:
    unsigned long lower_age_seconds_;
    unsigned long upper_age_seconds_;
    long reference_time_;  // seconds since the epoch
  };

  bool RemoveFileAtPath(const SASM::SimpleString& path) override;
  bool RemoveFilesInDirectoryInDateRange(
      const SASM::SimpleString& path, unsigned long lower_age_seconds,
      unsigned long upper_age_seconds) override;
  [[nodiscard]] std::uint64_t SizeOfFileAtPath(
      const SASM::SimpleString& path) const override;
  bool CreateDirectoryAtPath(const SASM::SimpleString& path,
                             const SASM::SimpleString& name) override;
  [[nodiscard]] const SASM::SimpleString& GetPathSeparator() const override;
  [[nodiscard]] const SASM::SimpleString& GetAssetCacheDirectory()
      const override;
  [[nodiscard]] const SASM::SimpleString& GetUserSettingsBaseDirectory()
      const override;
  [[nodiscard]] const SASM::SimpleString& GetDRMLicenseDataDirectory()
      const override;
  [[nodiscard]] SortableStringVector* CreateNewListOfDirectoryContents(
      const SASM::SimpleString& path) const override;

  // As RemoveFileAtPath, but only the files that `predicate` takes, and the
  // directories that are then empty. A null predicate takes every file.
  bool RemoveFilesRecursively(const SASM::SimpleString& path,
                              FilePredicate* predicate);
};
