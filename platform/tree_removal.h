// Removal of a directory tree.
#pragma once

#include <string>

#include "platform/directory_walk.h"
#include "platform/file_predicate.h"

// Removes files, and the directories that are then empty. Works relative to
// open directories and never follows a link in the tree, so that nothing
// outside can be reached, whatever is swapped in while it runs.
class TreeRemoval : private DirectoryWalk {
 public:
  // A null predicate takes every file; it is borrowed.
  explicit TreeRemoval(FilePredicate* predicate);

  // Removes the entry `name` of the open directory `directory`, a link as a
  // link. `directory_path` is that directory's path, for the predicate. True
  // also when nothing is there. Goes on after a failure, prints the step and
  // the system's error, and returns false at the end.
  [[nodiscard]] bool Remove(int directory, const char* name,
                            std::string directory_path);

  // The step that looks for what is to be removed, as messages name it.
  static constexpr char kLookStep[] = "RemoveFilesRecursively: stat";

 private:
  bool VisitEntry(int directory, const char* name, unsigned char type,
                  FileIdentity* identity) override;
  void LeaveDirectory(int parent, const char* name) override;
  void LoseDirectory() override;

  [[nodiscard]] bool PredicateTakes(const char* name, struct stat& info);
  void RemoveFile(int directory, const char* name);
  // Prints the failure in errno, unless it says that nothing is there.
  void Fail(const char* step);

  FilePredicate* predicate_;
  std::string directory_path_;
  bool succeeded_ = true;
};
