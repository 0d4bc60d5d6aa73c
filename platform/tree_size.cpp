#include "platform/tree_size.h"

#include <fcntl.h>
#include <search.h>

#include <algorithm>
#include <compare>
#include <limits>
#include <new>
#include <tuple>

// What the content of a directory reached by a link adds: nothing until it
// has been measured.
struct TreeSize::Measured {
  FileIdentity identity;
  std::uint64_t total_before_bytes;
  std::uint64_t size_bytes = 0;

  static int Compare(const void* a, const void* b) {
    const auto key = [](const void* node) {
      const auto& identity = static_cast<const Measured*>(node)->identity;
      return std::make_tuple(identity.device, identity.inode);
    };
    const auto order = key(a) <=> key(b);
    return std::is_gt(order) - std::is_lt(order);
  }

  static void Delete(void* node) { delete static_cast<Measured*>(node); }
};

TreeSize::TreeSize() : DirectoryWalk(Links::kFollow) {}

TreeSize::~TreeSize() { tdestroy(measured_, Measured::Delete); }

std::uint64_t TreeSize::Measure(const char* path) {
  Subdirectory top;
  if (VisitEntry(AT_FDCWD, path, DT_DIR, &top)) Walk(path, top);
  return total_bytes_;
}

bool TreeSize::VisitEntry(int directory, const char* name, unsigned char type,
                          Subdirectory* subdirectory) {
  struct stat info;
  if (fstatat(directory, name, &info, 0) != 0) return false;
  Add(static_cast<std::uint64_t>(info.st_size));
  subdirectory->identity = {info.st_dev, info.st_ino};
  subdirectory->is_link = type == DT_LNK || type == DT_UNKNOWN;
  return S_ISDIR(info.st_mode);
}

bool TreeSize::EnterDirectory(const Subdirectory& subdirectory) {
  const bool may_be_a_circle = subdirectory.is_link || links_inside_ > 0;
  if (may_be_a_circle && IsInside(subdirectory.identity)) return false;
  if (!subdirectory.is_link) return true;
  if (const Measured* known = Find(subdirectory.identity)) {
    Add(known->size_bytes);
    return false;
  }
  if (!Remember(subdirectory.identity)) return false;
  ++links_inside_;
  return true;
}

void TreeSize::LeaveDirectory(int, const char*,
                              const Subdirectory& subdirectory) {
  if (!subdirectory.is_link) return;
  --links_inside_;
  Measured* measured = Find(subdirectory.identity);
  measured->size_bytes = total_bytes_ - measured->total_before_bytes;
}

TreeSize::Measured* TreeSize::Find(const FileIdentity& identity) {
  const Measured key = {identity, 0};
  void* node = tfind(&key, &measured_, Measured::Compare);
  return node ? *static_cast<Measured**>(node) : nullptr;
}

bool TreeSize::Remember(const FileIdentity& identity) {
  auto* measured = new (std::nothrow) Measured{identity, total_bytes_};
  if (!measured) return false;
  if (tsearch(measured, &measured_, Measured::Compare)) return true;
  delete measured;
  return false;
}

void TreeSize::Add(std::uint64_t size_bytes) {
  const std::uint64_t room =
      std::numeric_limits<std::uint64_t>::max() - total_bytes_;
  total_bytes_ += std::min(size_bytes, room);
}
