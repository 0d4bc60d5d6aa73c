#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <ctime>
#include <filesystem>

#include "platform/drm_license_manager.h"
#include "tests/platform/deep_tree.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Removal : public testing::Test {
 protected:
  void Link(const std::string& target, const std::string& name) const {
    fs::create_symlink(target, home_ / name);
  }
  void Mode(const std::string& name, mode_t mode) const {
    EXPECT_EQ(chmod((home_ / name).c_str(), mode), 0);
  }
  void Age(const std::string& name, long seconds) const {
    const timespec then = {std::time(nullptr) - seconds, 0};
    const timespec times[] = {then, then};
    EXPECT_EQ(
        utimensat(AT_FDCWD, (home_ / name).c_str(), times, AT_SYMLINK_NOFOLLOW),
        0);
  }
  // The result, then what was printed.
  std::string Remove(const std::string& name) {
    testing::internal::CaptureStderr();
    const bool removed = files_.RemoveFileAtPath((home_ / name).c_str());
    return (removed ? "removed " : "failed ") +
           testing::internal::GetCapturedStderr();
  }
  bool RemoveByAge(unsigned long lower, unsigned long upper) {
    return files_.RemoveFilesInDirectoryInDateRange((home_ / "d").c_str(),
                                                    lower, upper);
  }

  TemporaryHome home_;
  HomeFileManager files_{home_};
};

TEST_F(Removal, TakesFilesAndTreesAndWhatIsNotThere) {
  home_.Write("d/.hidden", "x");
  home_.Write("d/e/f", "x");
  fs::create_directories(home_ / "d/empty");
  EXPECT_EQ(mkfifo((home_ / "d/pipe").c_str(), 0600), 0);
  home_.Write("file", "x");
  for (const char* name : {"d/e/f", "d", "file", "none", "none/below"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(Remove(name), "removed ");
    EXPECT_FALSE(home_.Has(name));
  }
  EXPECT_THAT(home_.List(), IsEmpty());
  EXPECT_TRUE(files_.RemoveFileAtPath(""));
  EXPECT_FALSE(files_.RemoveFileAtPath(SASM::SimpleString::WithoutText()));
}

TEST_F(Removal, TakesLinksAsLinks) {
  home_.Write("precious/file", "x");
  const char* const targets[] = {"precious", "precious/file", "nowhere", "."};
  for (const std::string target : targets) {
    SCOPED_TRACE(target);
    for (const char* name : {"link", "link/", "link//", "d"}) {
      SCOPED_TRACE(name);
      Link(home_ / target, "link");
      fs::create_directories(home_ / "d");
      Link(home_ / target, "d/link");
      EXPECT_EQ(Remove(name), "removed ");
      fs::remove_all(home_ / "d");
      fs::remove(home_ / (name[0] == 'd' ? "link" : "no such"));
      EXPECT_THAT(home_.List(), ElementsAre("precious", "precious/file"));
    }
  }
}

TEST_F(Removal, GoesOnAfterAFailureAndNamesTheStep) {
  const struct {
    const char* what;
    const char* locked;
    mode_t mode;
    const char* removed;
    const char* result;
    std::vector<std::string> left;
  } cases[] = {
      {"entries of a directory that may not change",
       "d/b",
       0500,
       "d",
       "failed RemoveFilesRecursively: unlink file: Permission denied\n"
       "RemoveFilesRecursively: unlink dir: Permission denied\n",
       {"d", "d/b", "d/b/empty", "d/b/file"}},
      {"a directory in one",
       "d/b",
       0500,
       "d/b/empty",
       "failed RemoveFilesRecursively: unlink dir: Permission denied\n",
       {"d", "d/a", "d/a/file", "d/b", "d/b/empty", "d/b/file", "d/c"}},
      {"below a directory that may not be searched",
       "d/b",
       0600,
       "d/b/file",
       "failed RemoveFilesRecursively: stat: Permission denied\n",
       {"d", "d/a", "d/a/file", "d/b", "d/b/empty", "d/b/file", "d/c"}},
      {"an unreadable directory with entries",
       "d/b",
       0300,
       "d",
       "removed ",
       {"d", "d/b", "d/b/empty", "d/b/file"}},
      {"an unreadable directory without any", "d/c", 0, "d", "removed ", {}},
      {"below a file",
       "d/c",
       0700,
       "d/a/file/x",
       "failed RemoveFilesRecursively: stat: Not a directory\n",
       {"d", "d/a", "d/a/file", "d/b", "d/b/empty", "d/b/file", "d/c"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    for (const char* file : {"d/a/file", "d/b/file"}) home_.Write(file, "x");
    fs::create_directories(home_ / "d/b/empty");
    fs::create_directories(home_ / "d/c");
    {
      OrdinaryUser user(home_);
      Mode(c.locked, c.mode);
      EXPECT_EQ(Remove(c.removed), c.result);
    }
    if (home_.Has(c.locked)) Mode(c.locked, 0700);
    EXPECT_EQ(home_.List(), c.left);
    fs::remove_all(home_ / "d");
  }
}

TEST_F(Removal, ByAgeTakesWhatLiesStrictlyBetween) {
  const struct {
    const char* name;
    long age_seconds;
    bool stays;
  } files[] = {{"d/new", -60, true},        {"d/young", 500, false},
               {"d/a/b/young", 500, false}, {"d/mixed/young", 500, false},
               {"d/mixed/old", 9000, true}, {"d/c/ancient", 1L << 31, true}};
  for (const auto& file : files) {
    home_.Write(file.name, "x");
    Age(file.name, file.age_seconds);
  }
  fs::create_directories(home_ / "d/empty");
  Link("nowhere", "d/young link");
  Age("d/young link", 500);
  testing::internal::CaptureStderr();
  EXPECT_TRUE(RemoveByAge(100, 3600));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
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

TEST(FileMTimePredicate, LeavesOutBothBounds) {
  const struct {
    long age_seconds;
    bool taken;
  } cases[] = {{10, false}, {11, true}, {19, true}, {20, false}, {-15, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.age_seconds);
    std::time_t now = 0;
    bool taken = false;
    do {  // until both are of the same second
      now = std::time(nullptr);
      struct stat info = {};
      info.st_mtime = now - c.age_seconds;
      LinuxFileManager::FileMTimePredicate predicate(10, 20);
      taken = predicate.test("", info);
    } while (std::time(nullptr) != now);
    EXPECT_EQ(taken, c.taken);
  }
  struct stat info = {};
  info.st_mtime = LONG_MIN;
  EXPECT_FALSE(LinuxFileManager::FileMTimePredicate(0, 20).test("", info));
}

TEST_F(Removal, AsksThePredicateAboutFilesByTheirPaths) {
  class Asked : public LinuxFileManager::FilePredicate {
   public:
    bool test(char const* path, struct stat& info) override {
      EXPECT_EQ(lstat(path, &info), 0);
      paths.push_back(path);
      return false;
    }
    std::vector<std::string> paths;
  } asked;
  home_.Write("d/e/f", "x");
  home_.Write("d/g", "x");
  EXPECT_TRUE(files_.RemoveFilesRecursively((home_ / "d").c_str(), &asked));
  EXPECT_TRUE(files_.RemoveFilesRecursively((home_ / "d/g").c_str(), &asked));
  EXPECT_THAT(asked.paths,
              ElementsAre(home_ / "d/g", home_ / "d/e/f", home_ / "d/g"));
}

TEST_F(Removal, EndsInADeepTreeWithLittleStackAndFewDescriptors) {
  home_.Write("precious/file", "x");
  const struct {
    rlim_t descriptors;
    int depth;
  } cases[] = {{64, 2000}, {12, 200}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.descriptors);
    MakeDeepTree(home_ / "d", c.depth, home_ / "precious");
    bool removed = false;
    {
      const LoweredLimit few(RLIMIT_NOFILE, c.descriptors);
      OnSmallStack(
          [&] { removed = files_.RemoveFileAtPath((home_ / "d").c_str()); });
    }
    EXPECT_TRUE(removed);
    EXPECT_THAT(home_.List(), ElementsAre("precious", "precious/file"));
  }
}

TEST_F(Removal, OfLicencesTouchesNothingElse) {
  const auto licences = [](const char* name) {
    return std::string(TemporaryHome::kLicences) + name;
  };
  SASM::DRMLicenseManager manager(&files_);
  EXPECT_TRUE(manager.Reset()) << "nothing is there";
  home_.Write(licences("/a/b"), "x");
  home_.Write(licences("2/a"), "x");
  EXPECT_TRUE(manager.Reset());
  EXPECT_FALSE(home_.Has(TemporaryHome::kLicences));
  EXPECT_TRUE(home_.Has(licences("2/a")));
}

}  // namespace
