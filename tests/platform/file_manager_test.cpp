#include <fcntl.h>
#include <gmock/gmock.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/home_directory.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"
#include "tests/support/settings_image.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class Directories : public testing::Test {
 protected:
  // The result, then what was printed.
  std::string Create(const std::string& path, const char* name) {
    testing::internal::CaptureStderr();
    const bool there =
        files_.CreateDirectoryAtPath((home_ / path).c_str(), name);
    return (there ? "there " : "failed ") +
           testing::internal::GetCapturedStderr();
  }
  unsigned int ModeOf(const std::string& name) const {
    struct stat info = {};
    EXPECT_EQ(stat((home_ / name).c_str(), &info), 0) << name;
    return info.st_mode & 07777;
  }

  TemporaryHome home_;
  HomeFileManager files_{home_};
};

TEST_F(Directories, AreMadeInAChainForTheirOwnerOnly) {
  fs::create_directory(home_ / "old");
  EXPECT_EQ(chmod((home_ / "old").c_str(), 0755), 0);
  const mode_t mask = umask(0);
  EXPECT_EQ(Create("old/a/b", "."), "there ");
  EXPECT_EQ(Create("old//c", "d/e"), "there ");
  EXPECT_EQ(Create("old", "."), "there ");
  umask(mask);
  for (const char* made : {"old/a", "old/a/b", "old/c", "old/c/d/e"}) {
    EXPECT_EQ(ModeOf(made), 0700u) << made;
  }
  EXPECT_EQ(ModeOf("old"), 0755u);
}

TEST_F(Directories, AreNotMadeBelowFilesNorWhereNothingMayChange) {
  home_.Write("file", "x");
  fs::create_directory(home_ / "shut");
  const OrdinaryUser user(home_);
  EXPECT_EQ(chmod((home_ / "shut").c_str(), 0500), 0);
  const struct {
    const char* path;
    const char* result;
  } cases[] = {
      {"file", "failed CreateDirectoryAtPath: Not a directory\n"},
      {"file/below", "failed CreateDirectoryAtPath: Not a directory\n"},
      {"shut/a/b", "failed CreateDirectoryAtPath: Permission denied\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.path);
    EXPECT_EQ(Create(c.path, "."), c.result);
  }
  EXPECT_THAT(home_.List(), ElementsAre("file", "shut"));
}

TEST_F(Directories, AreListedInNaturalOrder) {
  for (const char* name : {"10", "2", "B", ".a", "a1/x", "aZ"}) {
    home_.Write(std::string("d/") + name, "");
  }
  const auto names = [this](const std::string& path) {
    const std::unique_ptr<SortableStringVector> list(
        files_.CreateNewListOfDirectoryContents((home_ / path).c_str()));
    return image::NamesOf(*list);
  };
  EXPECT_THAT(names("d"), ElementsAre(".a", "aZ", "a1", "B", "2", "10"));
  EXPECT_THAT(names("none"), IsEmpty());
  EXPECT_THAT(names("d/10"), IsEmpty());
}

TEST(HomeDirectory, MayBeCalledAnything) {
  const TemporaryHome home;
  const char* const names[] = {"two  blanks",
                               "it's",
                               "\"quoted\"",
                               "$HOME",
                               "`id`",
                               "*",
                               "~",
                               "a\nb",
                               "back\\slash",
                               "[a-z]{}",
                               "t\xC3\xA4st;|&<>#"};
  for (const char* name : names) {
    SCOPED_TRACE(name);
    const std::string path = home / name;
    setenv("HOME", path.c_str(), 1);
    EXPECT_EQ(ExpandHomeDirectory("~/a/b").c_str(), path + "/a/b");
  }
}

TEST(HomeDirectory, ComesFromThePasswordDatabaseWhenHomeIsOfNoUse) {
  const TemporaryHome home;
  const std::string expected = getpwuid(getuid())->pw_dir + std::string("/a");
  for (const char* useless : {"", "relative/path", "~"}) {
    SCOPED_TRACE(useless);
    setenv("HOME", useless, 1);
    EXPECT_EQ(ExpandHomeDirectory("~/a").c_str(), expected);
  }
  unsetenv("HOME");
  EXPECT_EQ(ExpandHomeDirectory("~/a").c_str(), expected);
}

TEST(HomeDirectory, MayBeMissing) {
  const TemporaryHome home;
  const NoHome none;
  testing::internal::CaptureStderr();
  EXPECT_STREQ(ExpandHomeDirectory("~/a").c_str(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "There is no home directory for \"~/a\": nothing is kept on "
            "disk.\n");
}

TEST(HomeDirectory, IsLookedUpOnce) {
  const TemporaryHome home;
  const std::string base = LinuxFileManager().GetAssetCacheDirectory().c_str();
  EXPECT_EQ(base, home / TemporaryHome::kAssetCache);
  setenv("HOME", "/elsewhere", 1);
  EXPECT_EQ(LinuxFileManager().GetAssetCacheDirectory().c_str(), base);
}

}  // namespace
