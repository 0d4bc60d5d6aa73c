// Removal of a directory tree.
#pragma once

#include "platform/directory_walk.h"
#include "platform/linux_file_manager.h"

// Removes files, and the directories that are then empty. Works relative to
// open directories and never follows a link in the tree, nor on the way to it
// from a trusted directory, so that nothing outside can be reached, whatever
// is swapped in while it runs.
class TreeRemoval : private DirectoryWalk {
 public:
  // A null predicate takes every file.
  explicit TreeRemoval(LinuxFileManager::FilePredicate* predicate);

  // Removes what is at `path`, which lies below `trusted` unless that is
  // empty: `trusted` itself may be reached over links. True also when nothing
  // is there. Goes on after a failure, prints the step and the system's error,
  // and returns false at the end.
  [[nodiscard]] bool Remove(const SASM::SimpleString& path,
                            const SASM::SimpleString& trusted);

 private:
  bool VisitEntry(int directory, const char* name, unsigned char type,
                  Subdirectory* subdirectory) override;
  bool EnterDirectory(const Subdirectory& subdirectory) override;
  void LeaveDirectory(int parent, const char* name,
                      const Subdirectory& subdirectory) override;
  void LoseDirectory() override;

  void RemoveTree(char* path, const char* trusted);
  [[nodiscard]] bool PredicateTakes(const char* name, struct stat& info);
  void RemoveFile(int directory, const char* name);
  // Prints the failure in errno, unless it says that nothing is there.
  void Fail(const char* step);

  LinuxFileManager::FilePredicate* predicate_;
  bool succeeded_ = true;
};
