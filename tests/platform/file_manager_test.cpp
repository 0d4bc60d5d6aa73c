// The file manager: whole trees, and where a home is.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "platform/home_directory.h"
#include "platform/linux_file_manager.h"
#include "platform/tree_size.h"
#include "tests/support/call_hooks.h"
#include "tests/support/privileges.h"
#include "tests/support/temporary_home.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

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
  LinuxFileManager files_;
};

TEST_F(Tree, IsRemovedWithItsLinksAsLinks) {
  home_.Write("precious/file", "x");
  for (const std::string target : {"precious", "precious/file", "none", "."}) {
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
  const std::pair<const char*, long> files[] = {{"d/new", -60},
                                                {"d/a/b/young", 500},
                                                {"d/mixed/young", 500},
                                                {"d/mixed/old", 9000},
                                                {"d/c/ancient", 1L << 31}};
  for (const auto& [name, age_seconds] : files) {
    home_.Write(name, "x");
    Age(name, age_seconds);
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
  EXPECT_FALSE(home_.Has("d")) << "the directory itself goes";
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
  EXPECT_EQ(SizeOf("none"), 0u);
  // Each way back counts the directory it leads to, and ends there.
  Link(".", "d/self");
  Link("..", "d/e/up");
  Link("turn", "d/turn");
  EXPECT_EQ(SizeOf("d"), 3 * Own("d") + Own("d/e") + 23 + kHuge);
}

TEST_F(Tree, IsReadOnceHoweverManyWaysThereAre) {
  // Each directory points to the next one thrice.
  for (int i = 0; i < 40; ++i) {
    const std::string name = "ring/" + std::to_string(i);
    home_.Write(name + "/one", "0");
    const std::string next = "../" + std::to_string((i + 1) % 40);
    for (const char* link : {"/a", "/b", "/c"}) Link(next, name + link);
  }
  EXPECT_GT(SizeOf("ring"), 40 * Own("ring/0"));
  // A chain in which only links lead on.
  constexpr int kLength = 1500;
  for (int i = 0; i < kLength; ++i) {
    fs::create_directories(home_ / ("chain/" + std::to_string(i)));
    Link(home_ / ("chain/" + std::to_string(i + 1)),
         "chain/" + std::to_string(i) + "/next");
  }
  fs::create_directory(home_ / ("chain/" + std::to_string(kLength)));
  // Nested, each with a link to the one below.
  constexpr int kDepth = 1000;
  std::string nested = "n";
  fs::create_directory(home_ / nested);
  for (int i = 1; i < kDepth; ++i) {
    Link("d", nested + "/l");
    nested += "/d";
    fs::create_directory(home_ / nested);
  }
  int opened = 0;
  before_call = [&](unsigned int calls, auto&) {
    opened += calls & faults::kOpen;
  };
  EXPECT_EQ(SizeOf("chain/0"), kLength * Own("chain/0") + Own("chain/1500"));
  EXPECT_EQ(SizeOf("n"), ~std::uint64_t{0});
  const SharedMeasurement once;
  for (int i = 0; i < 1000; ++i) (void)SizeOf("ring");
  before_call = nullptr;
  EXPECT_GE(opened, kLength + kDepth);
  EXPECT_LT(opened, 3 * (kLength + kDepth + 40))
      << "each directory is read once";
}

TEST_F(Tree, NeedsLittleHoweverDeepAndWide) {
  constexpr int kDepth = 2000;
  constexpr char kLevel[] = "a name too long for a path of all";
  home_.Write("far/precious", "x");
  home_.Write("bottom/file", "1234567");
  Link(home_ / "far/d", "bottom/up");
  const std::uint64_t bottom = Own("bottom") + 7;
  for (const char* top : {"far/e", "far/d"}) {
    fs::create_directory(home_ / top);
    fs::current_path(home_ / top);
    for (int level = 1; level < kDepth; ++level) {
      fs::create_directory(kLevel);
      fs::current_path(kLevel);
    }
  }
  fs::rename(home_ / "bottom", kLevel);
  fs::current_path("/");
  // The link leads back to the top, which counts once more.
  const std::uint64_t size = (kDepth + 1) * Own("far/d") + bottom;
  // So far behind a link that the directory of the links has been closed.
  home_.Write("d/x/one", "0");
  Link("../../far/d", "d/x/a");
  Link("../../far/d", "d/x/b");
  home_.Write("d/y/two", "01");
  constexpr unsigned int kWidth = 1000;
  for (unsigned int i = 0; i < kWidth; ++i) {
    const std::string name = "/" + std::to_string(i);
    fs::create_directories(home_ / ("targets" + name));
    fs::create_directories(home_ / ("both" + name));
    fs::create_directories(home_ / "links");
    Link("../targets" + name, "links" + name);
  }
  for (int byte = 1; byte < 256; ++byte) {
    const std::string name = {static_cast<char>(byte), 'x'};
    if (byte != '/') home_.Write("both/" + name + "/" + name, "");
  }
  home_.Write("both/" + std::string(255, '\xFF'), "");
  const LoweredLimit descriptors(RLIMIT_NOFILE, 12);
  const LoweredLimit stack(RLIMIT_STACK, 256u << 10);
  const LoweredLimit memory(RLIMIT_DATA, MemoryLimit(1u << 20));
  EXPECT_EQ(SizeOf("d"), Own("d") + Own("d/x") + Own("d/y") + 3 + 2 * size);
  EXPECT_EQ(SizeOf("links"), Own("links") + kWidth * Own("targets/0"));
  for (const char* branch : {"d", "e"}) {
    fs::rename(home_.Path() / "far" / branch, home_.Path() / "both" / branch);
  }
  EXPECT_TRUE(Remove("both"));
  EXPECT_TRUE(home_.Has("far/precious") && !home_.Has("both"));
}

TEST_F(Tree, IsRemovedAroundWhatFails) {
  const std::string step = "RemoveFilesRecursively: unlink ";
  // The second: the first call below the tree's top.
  const std::tuple<unsigned int, int, int, std::string> cases[] = {
      {faults::kUnlink, 1, EPERM, step + "file: Operation not permitted\n"},
      {faults::kRmdir, 0, EBUSY, step + "dir: Device or resource busy\n"},
      {faults::kOpen, 2, EACCES, ""},
  };
  for (const auto& [calls, first_call, error, complaint] : cases) {
    bool is_met = true;
    for (int n = first_call; is_met; ++n) {
      SCOPED_TRACE(complaint + std::to_string(n));
      for (const char* name : {"t/a/1", "t/a/2", "t/b/1", "t/b/2"}) {
        home_.Write(name, "");
      }
      testing::internal::CaptureStderr();
      faults::Arm({"", calls, faults::Effect::kFail, error}, n);
      const bool is_removed = Remove("t");
      is_met = faults::Disarm();
      const std::string printed = testing::internal::GetCapturedStderr();
      EXPECT_EQ(printed, is_met ? complaint : "");
      EXPECT_EQ(is_removed, printed.empty());
      EXPECT_LE(home_.List().size(), is_met ? 4u : 0u) << "one branch stays";
    }
  }
}

// The way back would lead into another directory.
TEST_F(Tree, IsNotRemovedAboveADirectoryThatWasMoved) {
  home_.Write("t/a/b/c/d/e/f/g/h/i/j/k/l/m/n/file", "");
  const LoweredLimit descriptors(RLIMIT_NOFILE, 12);
  before_call = [&](unsigned int, const std::string& path) {
    if (path.ends_with("file")) fs::rename(home_ / "t/a/b/c", home_ / "moved");
  };
  testing::internal::CaptureStderr();
  EXPECT_FALSE(Remove("t"));
  before_call = nullptr;
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::HasSubstr("stat: Stale file handle\n"));
}

TEST_F(Tree, IsNotMadeOnAFileNorBelow) {
  home_.Write("file", "x");
  for (const char* path : {"file", "file/below"}) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(files_.CreateDirectoryAtPath((home_ / path).c_str(), "."));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "CreateDirectoryAtPath: Not a directory\n");
  }
}

TEST(HomeDirectory, MayBeCalledAnythingButNeedsAnAbsolutePath) {
  const TemporaryHome home;
  for (const char* name :
       {"two  blanks", "it's", "\"quoted\"", "$HOME", "`id`", "*", "~", "a\nb",
        "back\\slash", "[a-z]{}", "t\xC3\xA4st;|&<>#"}) {
    SCOPED_TRACE(name);
    const std::string path = home / name;
    setenv("HOME", path.c_str(), 1);
    EXPECT_EQ(ExpandHomeDirectory("~/a/b").c_str(), path + "/a/b");
  }
  const std::string expected = getpwuid(getuid())->pw_dir + std::string("/a");
  for (const char* useless : {"", "relative/path", "~"}) {
    SCOPED_TRACE(useless);
    setenv("HOME", useless, 1);
    EXPECT_EQ(ExpandHomeDirectory("~/a").c_str(), expected);
  }
  unsetenv("HOME");
  EXPECT_EQ(ExpandHomeDirectory("~/a").c_str(), expected);
}

}  // namespace
