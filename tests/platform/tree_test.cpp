// Whole trees: their removal and their size.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <ctime>
#include <filesystem>
#include <functional>

#include "platform/file_descriptor.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Tree : public testing::Test {
 protected:
  void Link(const std::string& target, const std::string& name) const {
    fs::create_symlink(target, home_ / name);
  }
  void Age(const std::string& name, long seconds) const {
    const timespec then = {std::time(nullptr) - seconds, 0};
    const timespec times[] = {then, then};
    EXPECT_EQ(
        utimensat(AT_FDCWD, (home_ / name).c_str(), times, AT_SYMLINK_NOFOLLOW),
        0);
  }
  // Directories in each other, too many for one path, a file and a link to
  // the top in every hundredth.
  void MakeDeep(const std::string& name, int depth) const;

  bool Remove(const std::string& name) {
    return files_.RemoveFileAtPath((home_ / name).c_str());
  }
  bool RemoveByAge(unsigned long lower, unsigned long upper) {
    return files_.RemoveFilesInDirectoryInDateRange((home_ / "d").c_str(),
                                                    lower, upper);
  }
  std::uint64_t SizeOf(const std::string& name) const {
    return files_.SizeOfFileAtPath((home_ / name).c_str());
  }
  // As stat reports it, links followed.
  std::uint64_t Own(const std::string& name) const {
    struct stat info = {};
    EXPECT_EQ(stat((home_ / name).c_str(), &info), 0) << name;
    return static_cast<std::uint64_t>(info.st_size);
  }

  TemporaryHome home_;
  HomeFileManager files_{home_};
};

void Tree::MakeDeep(const std::string& name, int depth) const {
  fs::create_directories(home_ / name);
  FileDescriptor directory(open((home_ / name).c_str(), O_DIRECTORY));
  for (int level = 0; level < depth; ++level) {
    if (level % 100 == 0) {
      const FileDescriptor file(
          openat(directory.Get(), "file", O_CREAT | O_WRONLY, 0600));
      ASSERT_EQ(write(file.Get(), "1234567", 7), 7);
      ASSERT_EQ(symlinkat((home_ / name).c_str(), directory.Get(), "link"), 0);
    }
    ASSERT_EQ(mkdirat(directory.Get(), "one more level", 0700), 0);
    directory =
        FileDescriptor(openat(directory.Get(), "one more level", O_DIRECTORY));
    ASSERT_TRUE(directory.IsOpen());
  }
}

// Calls `action` with 12 descriptors and 256 KiB of stack.
void WithLittle(std::function<void()> action) {
  const auto call = [](void* argument) -> void* {
    (*static_cast<std::function<void()>*>(argument))();
    return nullptr;
  };
  const LoweredLimit few(RLIMIT_NOFILE, 12);
  pthread_attr_t attributes;
  pthread_t thread;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 256 * 1024), 0);
  ASSERT_EQ(pthread_create(&thread, &attributes, call, &action), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

TEST_F(Tree, IsRemovedWithItsLinksAsLinks) {
  home_.Write("precious/file", "x");
  const char* const targets[] = {"precious", "precious/file", "nowhere", "."};
  for (const std::string target : targets) {
    for (const char* name : {"link", "link/", "link//", "d"}) {
      SCOPED_TRACE(name + (" to " + target));
      fs::create_directories(home_ / "d");
      Link(home_ / target, name[0] == 'd' ? "d/link" : "link");
      EXPECT_TRUE(Remove(name));
      fs::remove(home_ / "d");
      EXPECT_THAT(home_.List(), ElementsAre("precious", "precious/file"));
    }
  }
}

TEST_F(Tree, IsRemovedByAgeWhereFilesLieStrictlyBetween) {
  const struct {
    const char* name;
    long age_seconds;
  } files[] = {{"d/new", -60},        {"d/young", 500},
               {"d/a/b/young", 500},  {"d/mixed/young", 500},
               {"d/mixed/old", 9000}, {"d/c/ancient", 1L << 31}};
  for (const auto& file : files) {
    home_.Write(file.name, "x");
    Age(file.name, file.age_seconds);
  }
  fs::create_directories(home_ / "d/empty");
  Link("nowhere", "d/young link");
  Age("d/young link", 500);
  EXPECT_TRUE(RemoveByAge(100, 3600));
  EXPECT_THAT(home_.List(), ElementsAre("d", "d/c", "d/c/ancient", "d/mixed",
                                        "d/mixed/old", "d/new"));
  EXPECT_TRUE(RemoveByAge(0, LONG_MAX));
  EXPECT_THAT(home_.List(), ElementsAre("d", "d/new"));
  Age("d/new", 10);
  EXPECT_TRUE(RemoveByAge(0, ULONG_MAX)) << "which is -1: no age fits";
  EXPECT_TRUE(home_.Has("d/new"));
  EXPECT_TRUE(RemoveByAge(0, 3600));
  EXPECT_THAT(home_.List(), IsEmpty()) << "the directory itself goes";
}

TEST_F(Tree, HasTheSizeOfItsFilesAndDirectories) {
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 42;
  home_.Write("d/ten", "0123456789");
  home_.Write("d/e/.three", "012");
  home_.Write("d/huge", "");
  fs::resize_file(home_ / "d/huge", kHuge);
  Link("ten", "d/to ten");
  Link("nowhere", "d/to nothing");
  EXPECT_EQ(SizeOf("d/to ten"), 10u);
  EXPECT_EQ(SizeOf("d"), Own("d") + Own("d/e") + 23 + kHuge);
  EXPECT_EQ(SizeOf("none"), 0u);
  EXPECT_EQ(SizeOf("d/ten/below"), 0u);
}

TEST_F(Tree, IsMeasuredToAnEndWhereLinksRunInCircles) {
  home_.Write("d/e/one", "0");
  Link(".", "d/self");
  Link("..", "d/e/up");
  Link("turn", "d/turn");
  // Each way back counts the directory it leads to, and ends there.
  EXPECT_EQ(SizeOf("d"), Own("d") * 3 + Own("d/e") + 1);

  // Directories that point to the next one thrice: without care a walk of
  // them takes for ever.
  for (int i = 0; i < 40; ++i) {
    const std::string name = "ring/" + std::to_string(i);
    home_.Write(name + "/one", "0");
    const std::string next = "../" + std::to_string((i + 1) % 40);
    for (const char* link : {"/a", "/b", "/c"}) Link(next, name + link);
  }
  EXPECT_GT(SizeOf("ring"), 40 * Own("ring/0"));
}

TEST_F(Tree, NeedsLittleStackAndFewDescriptorsHoweverDeep) {
  constexpr int kDepth = 2000;
  MakeDeep("far/d", kDepth);
  fs::create_directory(home_ / "empty");
  // The links lead back to the top, which counts once more for each.
  const std::uint64_t size = kDepth / 100 * (2 * Own("far/d") + 7) +
                             kDepth * 99 / 100 * Own("far/d/one more level") +
                             Own("empty");
  // So far behind a link that the directory of the links has been closed.
  home_.Write("d/x/one", "0");
  Link("../../far/d", "d/x/a");
  Link("../../far/d", "d/x/b");
  home_.Write("d/y/two", "01");
  std::uint64_t measured = 0;
  WithLittle([&] { measured = SizeOf("d"); });
  EXPECT_EQ(measured, Own("d") + Own("d/x") + Own("d/y") + 3 + 2 * size);

  home_.Write("far/precious", "x");
  bool removed = false;
  WithLittle([&] { removed = Remove("far/d"); });
  EXPECT_TRUE(removed);
  EXPECT_FALSE(home_.Has("far/d"));
}

}  // namespace
