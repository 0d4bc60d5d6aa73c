// A walk of a directory tree that nothing in the tree can lead astray.
#pragma once

#include <dirent.h>
#include <sys/types.h>

#include <cstddef>
#include <string>
#include <vector>

#include "platform/file_descriptor.h"

// Which file this is, whatever its name.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  bool operator==(const FileIdentity&) const = default;
};

// Walks a tree depth first; each directory is read whole before its
// subdirectories are entered. Follows no symbolic link. Works relative to open
// directories, of which it keeps kMostOpenDirectories, and fewer where the
// process can have no more; neither the stack nor the descriptors grow with the
// depth of the tree. Memory grows with the depth and with the names of the
// directories that wait to be entered.
//
// A subclass says what happens to an entry and to a directory that is done.
class DirectoryWalk {
 public:
  DirectoryWalk(const DirectoryWalk&) = delete;
  DirectoryWalk& operator=(const DirectoryWalk&) = delete;

  // And one more while a directory is entered. Fewer than the 1,024 files that
  // a process may usually have open. A tree this deep is walked without ever
  // opening a directory twice.
  static constexpr std::size_t kMostOpenDirectories = 960;

 protected:
  enum Way {
    kThereAndBack,
    kThere,  // LeaveDirectory does nothing: the last levels need no way back
  };
  explicit DirectoryWalk(Way way);
  virtual ~DirectoryWalk();

  // Walks the tree at `name`, which is relative to the open directory `parent`
  // as for openat(2). `identity`, if known, is passed to EnterDirectory.
  void Walk(int parent, const char* name, const FileIdentity& identity = {});

  // An entry of the directory open at `directory`; `type` is one of the DT_
  // constants of readdir(3), DT_UNKNOWN among them. True when it is a
  // directory to enter; `*identity`, if set, is then kept until
  // EnterDirectory.
  virtual bool VisitEntry(int directory, const char* name, unsigned char type,
                          FileIdentity* identity) = 0;
  // Called right before a directory is read. False to skip it.
  virtual bool EnterDirectory(const FileIdentity& identity);
  // A directory is done, also when it could not be opened. `parent` and `name`
  // name it, as for openat(2).
  virtual void LeaveDirectory(int parent, const char* name);
  // A directory has gone from where it was found; errno is ESTALE. What is
  // below it is left out.
  virtual void LoseDirectory();

  // Gives up a descriptor of the walk's own; false when none is to spare.
  [[nodiscard]] bool CloseFarthest();

  // The path of an entry of the directory that is being read, from the `name`
  // that the walk began with.
  [[nodiscard]] std::string PathOf(const char* name) const;

 private:
  struct Level;

  void Push(const char* name, const FileIdentity& identity);
  void Pop();
  void ReadTop();
  void VisitBatch(std::size_t size);
  void EnterNextSubdirectory();
  [[nodiscard]] bool OpenParentOfTop();
  [[nodiscard]] int ParentOfTop() const;
  // Gives up descriptors of the walk's own when the process has none left.
  [[nodiscard]] FileDescriptor OpenBelowTop(const char* name);

  const Way way_;
  int start_ = -1;
  // From the start of the walk to where it is. The open ones are always the
  // last, from the farthest.
  std::vector<Level> levels_;
  std::size_t farthest_open_ = 0;
  std::size_t open_count_ = 0;
  // In all levels.
  std::size_t waiting_count_ = 0;
  alignas(dirent64) unsigned char batch_[32768];
};
