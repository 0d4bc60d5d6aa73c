// Trees removed, and the sizes of trees summed.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "bench/bare_calls.h"
#include "bench/harness.h"
#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

namespace {

constexpr std::size_t kFilesInDirectory = 100;

void MakeWideTree(const std::string& path, std::size_t files) {
  mkdir(path.c_str(), 0700);
  const int top = open(path.c_str(), O_RDONLY | O_DIRECTORY);
  for (std::size_t i = 0; i < files; ++i) {
    const std::string directory =
        "directory" + std::to_string(i / kFilesInDirectory);
    if (i % kFilesInDirectory == 0) mkdirat(top, directory.c_str(), 0700);
    const std::string file = directory + "/file" + std::to_string(i) + ".sol";
    close(openat(top, file.c_str(), O_WRONLY | O_CREAT, 0600));
  }
  close(top);
}

void MakeDeepTree(const std::string& path, std::size_t levels) {
  mkdir(path.c_str(), 0700);
  int directory = open(path.c_str(), O_RDONLY | O_DIRECTORY);
  for (std::size_t i = 0; i < levels; ++i) {
    mkdirat(directory, "level", 0700);
    const int child = openat(directory, "level", O_RDONLY | O_DIRECTORY);
    close(directory);
    directory = child;
  }
  close(directory);
}

struct Shape {
  const char* name;
  std::size_t sizes[3];
  void (*make)(const std::string& path, std::size_t size);
};

constexpr Shape kShapes[] = {
    {"100 files a directory", {1000, 10000, 100000}, MakeWideTree},
    {"nested", {20, 200, 2000}, MakeDeepTree},
};

void MeasureRemoval(const Shape& shape, std::size_t size,
                    const std::string& path) {
  const auto make = [&] { shape.make(path, size); };
  LinuxFileManager files;
  Measure(
      {std::string("tree removed, ") + shape.name, size},
      {{kPanel, [&] { Check(files.RemoveFileAtPath(path.c_str()), "remove"); },
        make},
       {kFloor, [&] { RemoveTree(path); }, make},
       {"rm -rf",
        [&] {
          RunProgram({"rm", "-rf", path});
        },
        make}});
}

void MeasureSize(const Shape& shape, std::size_t size,
                 const std::string& path) {
  shape.make(path, size);
  const LinuxFileManager files;
  const std::size_t sum = SizeOfTree(path);
  Measure(
      {std::string("sizes summed, ") + shape.name, size},
      {{kPanel,
        [&] { Check(files.SizeOfFileAtPath(path.c_str()) == sum, "size"); }},
       {kFloor, [&] { Check(SizeOfTree(path) == sum, "size"); }},
       {"du -sb", [&] {
          RunProgram({"du", "-sb", path});
        }}});
  RemoveTree(path);
}

}  // namespace

int main() {
  const TemporaryHome home;
  const std::string path = home / "tree";
  for (const Shape& shape : kShapes) {
    for (const std::size_t size : shape.sizes) {
      MeasureRemoval(shape, size, path);
      MeasureSize(shape, size, path);
    }
  }
}
