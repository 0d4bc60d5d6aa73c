// The size of a directory tree.
#pragma once

#include <cstdint>

#include "platform/directory_walk.h"

// Adds up the sizes that stat reports, links followed: a directory reached by
// a link counts again, with everything in it, however often it is reached;
// it is measured once. A link back to a directory that is being measured adds
// that directory's own size and ends there, so that circles end.
class TreeSize : private DirectoryWalk {
 public:
  TreeSize();
  ~TreeSize() override;

  // Bytes; 0 when nothing is there, at most 2^64 - 1.
  [[nodiscard]] std::uint64_t Measure(const char* path);

 private:
  struct Measured;

  bool VisitEntry(int directory, const char* name, unsigned char type,
                  Subdirectory* subdirectory) override;
  bool EnterDirectory(const Subdirectory& subdirectory) override;
  void LeaveDirectory(int parent, const char* name,
                      const Subdirectory& subdirectory) override;
  void LoseDirectory() override {}

  // Borrowed; null when that directory was not reached by a link so far.
  [[nodiscard]] Measured* Find(const FileIdentity& identity);
  // False when memory is short.
  [[nodiscard]] bool Remember(const FileIdentity& identity);
  void Add(std::uint64_t size_bytes);

  std::uint64_t total_bytes_ = 0;
  // Directories reached by links: a tree of <search.h>.
  void* measured_ = nullptr;
  // Links on the way from the start to where the walk is.
  unsigned int links_inside_ = 0;
};
