// The file manager of a POSIX system.
#pragma once

#include <string_view>

#include "platform/file_descriptor.h"
#include "platform/file_manager.h"
#include "platform/file_predicate.h"

// Holds no state: the data directories are worked out once per process, with
// the environment of the first call, and shared by every instance.
class LinuxFileManager : public SASM::FileManager {
 public:
  using FilePredicate = ::FilePredicate;

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

 private:
  // The directory at `path`, for calls such as openat(2) only. Below the data
  // directories no link is followed; they, what leads to them, and any other
  // path are trusted. On failure errno says why, see OpenBelow.
  [[nodiscard]] FileDescriptor OpenTrusted(std::string_view path) const;
  // Makes the directory and the missing ones above it; errno says why it could
  // not. True for whatever exists.
  [[nodiscard]] bool MakeDirectory(std::string_view path) const;
};
