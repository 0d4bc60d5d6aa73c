#include "platform/tree_size.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <optional>

// Not in the header: `TreeSize()` would there mean that all its memory, most of
// it a buffer, is set to zero first.
TreeSize::TreeSize() = default;

std::uint64_t TreeSize::Measure(const char* path) {
  HoldParentOf(path);
  const int directory = parent_.IsOpen() ? parent_.Get() : AT_FDCWD;
  if (parent_.IsOpen()) path += parent_path_.size();
  struct stat info;
  if (fstatat(directory, path, &info, 0) != 0) return 0;
  const auto own_bytes = static_cast<std::uint64_t>(info.st_size);
  if (!S_ISDIR(info.st_mode)) return own_bytes;
  return AddSizes(own_bytes, ContentOf(directories_.Read(
                                 directory, path, {info.st_dev, info.st_ino})));
}

void TreeSize::HoldParentOf(std::string_view path) {
  const std::string_view parent = path.substr(0, path.rfind('/') + 1);
  if (parent == parent_path_ && parent_.IsOpen()) return;
  parent_path_ = parent;
  parent_ = parent.size() == path.size()
                ? FileDescriptor()
                : OpenPlace(AT_FDCWD, parent_path_.c_str());
}

std::uint64_t TreeSize::ContentOf(Directory* top) {
  if (top->is_final) return top->content_bytes;
  if (top->has_top_bytes) return top->top_bytes;
  ++measurement_;
  Enter(top, false);
  while (!steps_.empty()) {
    const Step& step = steps_.back();
    if (step.next < step.directory->subdirectories.size()) {
      EnterNextSubdirectory();
    } else {
      top->top_bytes = LeaveDirectory();
    }
  }
  top->has_top_bytes = true;
  return top->top_bytes;
}

void TreeSize::Enter(Directory* directory, bool is_link) {
  directory->is_open = true;
  steps_.push_back({.directory = directory,
                    .is_by_link = is_link,
                    .bytes = directory->entries_bytes});
}

void TreeSize::EnterNextSubdirectory() {
  Step& step = steps_.back();
  const auto& [directory, is_link] =
      step.directory->subdirectories[step.next++];
  const bool is_measured = is_link && directory->measurement == measurement_;
  if (!directory->is_final && !directory->is_open && !is_measured) {
    return Enter(directory, is_link);
  }
  step.is_final = step.is_final && directory->is_final;
  if (!directory->is_open) {
    step.bytes = AddSizes(step.bytes, directory->content_bytes);
  }
}

std::uint64_t TreeSize::LeaveDirectory() {
  const Step done = steps_.back();
  steps_.pop_back();
  done.directory->is_open = false;
  done.directory->is_final = done.is_final;
  if (done.is_final || done.is_by_link) {
    done.directory->content_bytes = done.bytes;
    done.directory->measurement = measurement_;
  }
  if (steps_.empty()) return done.bytes;
  Step& parent = steps_.back();
  parent.bytes = AddSizes(parent.bytes, done.bytes);
  parent.is_final = parent.is_final && done.is_final;
  return done.bytes;
}

namespace {

std::optional<TreeSize> shared;
int sharers = 0;

}  // namespace

SharedMeasurement::SharedMeasurement() {
  if (sharers++ == 0) shared.emplace();
}

SharedMeasurement::~SharedMeasurement() {
  if (--sharers == 0) shared.reset();
}

TreeSize* SharedMeasurement::Current() { return shared ? &*shared : nullptr; }
