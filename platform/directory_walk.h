// A walk of a directory tree that nothing in the tree can lead astray.
#pragma once

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cstddef>
#include <cstdint>

#include "platform/file_descriptor.h"
#include "settings/simple_string.h"

// Which file this is, whatever its name.
struct FileIdentity {
  dev_t device = 0;
  ino_t inode = 0;
  bool operator==(const FileIdentity&) const = default;
};

// Walks a tree depth first, each directory read whole before its
// subdirectories are entered. Works relative to open directories, of which it
// keeps a fixed number, and fewer where the process can have no more; neither
// the stack nor the descriptors grow with the depth of the tree. Memory grows
// with the depth and with the names of the directories that wait to be
// entered.
//
// A subclass says what happens to an entry and to a directory that is done.
class DirectoryWalk {
 public:
  DirectoryWalk(const DirectoryWalk&) = delete;
  DirectoryWalk& operator=(const DirectoryWalk&) = delete;

 protected:
  enum class Links { kFollow, kRefuse };

  // A directory that waits to be entered.
  struct Subdirectory {
    FileIdentity identity;  // where the subclass needs it, else zero
    bool is_link = false;
  };

  explicit DirectoryWalk(Links links);
  virtual ~DirectoryWalk();

  // Walks the tree at `path`, whose last component is entered like a link
  // when it is one.
  void Walk(const char* path, const Subdirectory& top) {
    Walk({AT_FDCWD, path}, path, top);
  }
  // Where a walk starts: `name` as for openat(2).
  struct Start {
    int parent;
    const char* name;
  };
  // The same, but comes to the tree by `start`; PathOf begins with `path`.
  void Walk(const Start& start, const char* path, const Subdirectory& top);

  // An entry of the directory open at `directory`; `type` is one of the DT_
  // constants of readdir(3), DT_UNKNOWN among them. True when it is a
  // directory to enter; `subdirectory` is then kept until EnterDirectory.
  virtual bool VisitEntry(int directory, const char* name, unsigned char type,
                          Subdirectory* subdirectory) = 0;
  // False to pass over a directory that waited.
  virtual bool EnterDirectory(const Subdirectory& subdirectory) = 0;
  // A directory is done, also when it could not be opened. `parent` and
  // `name` name it, as for openat(2).
  virtual void LeaveDirectory(int parent, const char* name,
                              const Subdirectory& subdirectory) = 0;
  // Memory is short, or a directory has gone from where it was found: errno
  // says which. What lies below it is left out.
  virtual void LoseDirectory() = 0;

  // True when the walk is inside that directory.
  [[nodiscard]] bool IsInside(const FileIdentity& identity) const;
  // The path of an entry of the directory that is being read; without a text
  // when memory is short.
  [[nodiscard]] SASM::SimpleString PathOf(const char* name) const;

 private:
  struct Level;

  bool Push(const char* name, const Subdirectory& subdirectory);
  void Pop();
  void ReadTop();
  void VisitBatch(std::size_t size);
  void EnterNextSubdirectory();
  [[nodiscard]] bool CloseFarthest();
  [[nodiscard]] bool OpenParentOfTop();
  // Gives up descriptors of the walk's own when the process has none left.
  [[nodiscard]] FileDescriptor OpenBelowTop(const char* name);
  [[nodiscard]] FileDescriptor OpenFromPath(const Level& target) const;
  [[nodiscard]] FileDescriptor Open(int parent, const char* name) const;

  const Links links_;
  Start start_ = {AT_FDCWD, nullptr};
  // The levels from the start of the walk to where it is.
  Level* first_ = nullptr;
  Level* top_ = nullptr;
  // The open ones are always the last: from this one to the top.
  Level* farthest_open_ = nullptr;
  unsigned int open_count_ = 0;
  alignas(dirent64) unsigned char batch_[32768];
};
