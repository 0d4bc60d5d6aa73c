#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/home_directory.h"
#include "tests/support/home_file_manager.h"

namespace {

TEST(Directories, AreNotMadeOnFilesNorBelow) {
  const TemporaryHome home;
  HomeFileManager files(home);
  home.Write("file", "x");
  for (const char* path : {"file", "file/below"}) {
    testing::internal::CaptureStderr();
    EXPECT_FALSE(files.CreateDirectoryAtPath((home / path).c_str(), "."));
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
