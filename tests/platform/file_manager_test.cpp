#include <gtest/gtest.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "platform/home_directory.h"
#include "tests/support/home_file_manager.h"

namespace {

namespace fs = std::filesystem;

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

TEST_F(Directories, AreNotMadeOnFilesNorBelow) {
  home_.Write("file", "x");
  for (const char* path : {"file", "file/below"}) {
    EXPECT_EQ(Create(path, "."),
              "failed CreateDirectoryAtPath: Not a directory\n");
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
