// The size of a directory tree.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/directory_sizes.h"
#include "platform/file_descriptor.h"

// Adds up the sizes that stat reports, links followed: a directory reached by
// a link counts again, with everything in it, however often it is reached. A
// link back to a directory that is being measured adds that directory's own
// size and ends there, so that circles end.
//
// Reads each directory once in its life: a later measurement that reaches the
// same directory gives what it held then. Keeps a descriptor.
class TreeSize {
 public:
  TreeSize();

  // Bytes; 0 when nothing is there, at most 2^64 - 1.
  [[nodiscard]] std::uint64_t Measure(const char* path);

 private:
  using Directory = DirectorySizes::Directory;
  // A directory that is being measured.
  struct Step {
    Directory* directory;
    bool is_by_link;
    std::size_t next = 0;  // subdirectory
    std::uint64_t bytes = 0;
    // False when something below it was left out because it is being measured:
    // reached from elsewhere, the directory may have another size.
    bool is_final = true;
  };

  [[nodiscard]] std::uint64_t ContentOf(Directory* top);
  void Enter(Directory* directory, bool is_link);
  void EnterNextSubdirectory();
  // The bytes of the directory that is done.
  std::uint64_t LeaveDirectory();
  // What is measured one after another are often neighbours: the directory that
  // holds them is looked up once.
  void HoldParentOf(std::string_view path);

  std::string parent_path_;  // with the slash at its end
  FileDescriptor parent_;
  DirectorySizes directories_;
  // From the top of the tree to the directory that is being measured.
  std::vector<Step> steps_;
  unsigned int measurement_ = 0;
};

// As long as one of these lives, all sizes are measured by one TreeSize: lists
// of many sites that share directories are measured quickly. May be nested.
class SharedMeasurement {
 public:
  SharedMeasurement();
  ~SharedMeasurement();
  SharedMeasurement(const SharedMeasurement&) = delete;
  SharedMeasurement& operator=(const SharedMeasurement&) = delete;

  // Null when none lives.
  [[nodiscard]] static TreeSize* Current();
};
