// Trees removed, and the sizes of trees summed.
#include <filesystem>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kFilesInDirectory = 100;

void MakeWideTree(const TemporaryHome& home, std::size_t files) {
  for (std::size_t i = 0; i < files; ++i) {
    home.Write("tree/directory" + std::to_string(i / kFilesInDirectory) +
                   "/file" + std::to_string(i) + ".sol",
               "");
  }
}

// Too deep for a path.
void MakeDeepTree(const TemporaryHome& home, std::size_t levels) {
  const fs::path former = fs::current_path();
  fs::create_directory(home / "tree");
  fs::current_path(home / "tree");
  for (std::size_t i = 0; i < levels; ++i) {
    fs::create_directory("level");
    fs::current_path("level");
  }
  fs::current_path(former);
}

struct Shape {
  const char* name;
  std::size_t sizes[3];
  void (*make)(const TemporaryHome& home, std::size_t size);
};

constexpr Shape kShapes[] = {
    {"100 files a directory", {1000, 10000, 100000}, MakeWideTree},
    {"nested", {20, 200, 2000}, MakeDeepTree},
};

void MeasureTree(const Shape& shape, std::size_t size,
                 const TemporaryHome& home) {
  const std::string path = home / "tree";
  LinuxFileManager files;
  const auto make = [&] { shape.make(home, size); };
  const auto remove = [&] {
    Check(files.RemoveFileAtPath(path.c_str()), "remove");
  };
  const auto run_rm = [&] { RunProgram({"rm", "-rf", path}); };
  Measure({std::string("tree removed, ") + shape.name, size},
          {{kPanel, remove, make},
           {kFloor, [&] { RemoveTree(path); }, make},
           {"rm -rf", run_rm, make}});
  make();
  const std::size_t sum = SizeOfTree(path);
  const auto measure = [&] {
    Check(files.SizeOfFileAtPath(path.c_str()) == sum, "size");
  };
  const auto run_du = [&] { RunProgram({"du", "-sb", path}); };
  Measure({std::string("sizes summed, ") + shape.name, size},
          {{kPanel, measure},
           {kFloor, [&] { Check(SizeOfTree(path) == sum, "size"); }},
           {"du -sb", run_du}});
  RemoveTree(path);
}

}  // namespace

int main() {
  const TemporaryHome home;
  for (const Shape& shape : kShapes) {
    for (const std::size_t size : shape.sizes) MeasureTree(shape, size, home);
  }
}
