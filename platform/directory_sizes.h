// The sizes of directories, read from disk.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/directory_walk.h"

// Reads directories and all that can be reached from them, links followed.
// Each is read once, however many links lead to it, and stays known as read.
class DirectorySizes : private DirectoryWalk {
 public:
  struct Directory;
  struct Subdirectory {
    Directory* directory;
    bool is_link;  // the entry is a symbolic link to it
  };
  // A directory that could not be read is empty.
  struct Directory {
    // What stat(2) reports for all its entries, links followed; at most
    // 2^64 - 1.
    std::uint64_t entries_bytes = 0;
    std::vector<Subdirectory> subdirectories = {};

    // For TreeSize.
    std::uint64_t content_bytes = 0;
    std::uint64_t top_bytes = 0;  // where a measurement began with it
    unsigned int measurement = 0;
    bool is_final = false;
    bool is_open = false;
    bool has_top_bytes = false;
  };

  DirectorySizes();
  ~DirectorySizes() override;

  // The directory at `path`, which is relative to the open directory
  // `directory` as for openat(2), with all below it read. `identity` is what
  // stat(2) says of it. Borrowed; lives as long as this object.
  [[nodiscard]] Directory* Read(int directory, const char* path,
                                const FileIdentity& identity);

 private:
  struct Root;
  struct HashIdentity {
    std::size_t operator()(const FileIdentity& identity) const {
      return std::hash<ino_t>()(identity.inode);
    }
  };

  bool VisitEntry(int directory, const char* name, unsigned char type,
                  FileIdentity* identity) override;
  bool EnterDirectory(const FileIdentity& identity) override;

  // What a link leads to is read when the walk that met the link is done.
  void ReadLater(int directory, const char* name, const FileIdentity& identity);
  void ReadAllRoots();

  // Nodes never move.
  std::unordered_map<FileIdentity, Directory, HashIdentity> directories_;
  std::vector<Root> roots_;
  std::size_t open_roots_ = 0;
  Directory* current_ = nullptr;
};

// The sum, at most 2^64 - 1.
[[nodiscard]] std::uint64_t AddSizes(std::uint64_t a, std::uint64_t b);
