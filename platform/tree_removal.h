// Removal of a directory tree.
#pragma once

#include "platform/directory_walk.h"
#include "platform/linux_file_manager.h"

// Removes files, and the directories that are then empty. Works relative to
// open directories and never follows a link, so that nothing outside the tree
// can be reached, whatever is swapped in while it runs.
class TreeRemoval : private DirectoryWalk {
 public:
  // A null predicate takes every file.
  explicit TreeRemoval(LinuxFileManager::FilePredicate* predicate);

  // True also when nothing is there. Goes on after a failure, prints the step
  // and the system's error, and returns false at the end.
  [[nodiscard]] bool Remove(const char* path);

 private:
  bool VisitEntry(int directory, const char* name, unsigned char type,
                  Subdirectory* subdirectory) override;
  bool EnterDirectory(const Subdirectory& subdirectory) override;
  void LeaveDirectory(int parent, const char* name,
                      const Subdirectory& subdirectory) override;
  void LoseDirectory() override;

  [[nodiscard]] bool PredicateTakes(const char* name, struct stat& info);
  void RemoveFile(int directory, const char* name);
  // Prints the failure in errno, unless it says that nothing is there.
  void Fail(const char* step);

  LinuxFileManager::FilePredicate* predicate_;
  bool succeeded_ = true;
};
