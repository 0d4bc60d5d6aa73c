#include "plugin/plugin_version.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/support/temporary_home.h"

namespace fs = std::filesystem;

namespace {

constexpr char kGood[] = "10.1 r53";
constexpr char kOther[] = "11.2";

// A machine with no plug-in but those that a test installs, and with no
// command "locate" but the test's.
class PluginVersion : public testing::Test {
 protected:
  PluginVersion() {
    fs::create_directory(home_ / "bin");
    setenv("PATH", (home_ / "bin").c_str(), 1);
    unsetenv("MOZ_PLUGIN_PATH");
  }
  ~PluginVersion() override { setenv("PATH", path_.c_str(), 1); }

  void Install(const std::string& stand_in, const std::string& name) const {
    const fs::path target = home_ / name;
    fs::create_directories(target.parent_path());
    fs::copy_file(std::string(STAND_INS "/") + stand_in + ".so", target);
  }
  void Search(const std::string& items) const {
    setenv("MOZ_PLUGIN_PATH", items.c_str(), 1);
  }
  // A command that does what the shell is told.
  void MakeLocate(const std::string& body) const {
    home_.Write("bin/locate", "#!/bin/sh\n" + body + "\n");
    fs::permissions(home_ / "bin/locate", fs::perms::owner_all);
  }

  TemporaryHome home_;

 private:
  const std::string path_ = std::getenv("PATH");
};

std::size_t CountDescriptors() {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator("/proc/self/fd"), {}));
}

TEST_F(PluginVersion, TellsWhatEachKindOfLibraryAnswers) {
  const struct {
    const char* stand_in;
    const char* version;  // null for none
    PluginState state;
  } cases[] = {
      {"good", kGood, PluginState::kInstalled},
      {"failing", nullptr, PluginState::kNoVersion},
      {"textless", nullptr, PluginState::kNoVersion},
      {"digitless", "", PluginState::kNoVersion},
      {"entryless", nullptr, PluginState::kNoVersion},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stand_in);
    Install(c.stand_in, c.stand_in + std::string("/libcorvaneplayer.so"));
    Search(home_ / c.stand_in);
    EXPECT_STREQ(get_plugin_version(), c.version);
    const char* version = "unset";
    EXPECT_EQ(FindPluginVersion(&version), c.state);
  }
}

TEST_F(PluginVersion, TakesTheFirstSourceThatLoads) {
  Install("good", ".mozilla/plugins/corvaneplayer.so");
  EXPECT_STREQ(get_plugin_version(), kGood);
  Install("other", "b/my-corvaneplayer.so.2");
  Search(":" + home_ / "missing" + "::~/b:");
  EXPECT_STREQ(get_plugin_version(), kOther);
  // Loaded, so the search is over, though it has no version.
  Install("entryless", "a/corvaneplayer.so");
  Search("$HOME/a:~/b");
  EXPECT_EQ(get_plugin_version(), nullptr);
}

TEST_F(PluginVersion, ReadsADirectoryAsAWord) {
  Install("good", "a b/corvaneplayer.so");
  Install("other", "a/corvaneplayer.so");
  Search("~/a b");
  EXPECT_STREQ(get_plugin_version(), kOther);
  Search("'" + home_ / "a b" + "'");
  EXPECT_STREQ(get_plugin_version(), kGood);
  for (const std::string item :
       {"$(true >~/ran; echo ~/a)", "`true >~/ran; echo ~/a`",
        "$NO_SUCH_VARIABLE", "~/a|", "\"~/a", " "}) {
    SCOPED_TRACE(item);
    Search(item);
    EXPECT_EQ(get_plugin_version(), nullptr);
  }
  EXPECT_FALSE(home_.Has("ran"));
}

// A candidate that cannot be loaded hides what else its directory holds, and
// nothing beyond.
TEST_F(PluginVersion, TriesOneCandidateADirectory) {
  home_.Write("text/corvaneplayer.so", "not a library");
  fs::create_directories(home_ / "directory/corvaneplayer.so");
  fs::create_directory(home_ / "pipe");
  ASSERT_EQ(mkfifo((home_ / "pipe/corvaneplayer.so").c_str(), 0600), 0);
  for (const std::string name : {"pipe", "directory", "text"}) {
    SCOPED_TRACE(name);
    Search(home_ / name);
    const char* version = nullptr;
    EXPECT_EQ(FindPluginVersion(&version), PluginState::kNotInstalled);
  }
  Install("good", "library");
  fs::create_directory(home_ / "good");
  fs::create_symlink("../library", home_ / "good/corvaneplayer.so");
  Search("~/text:~/directory:~/pipe:~/good");
  EXPECT_STREQ(get_plugin_version(), kGood);
}

TEST_F(PluginVersion, AsksLocateLastAndTakesOnlyAFileFromItsFirstLine) {
  Install("good", "corvaneplayer.so");
  const std::string library = home_ / "corvaneplayer.so";
  const std::string long_path =
      home_.Path().string() + std::string(1024, '/') + "corvaneplayer.so";
  const struct {
    const char* what;
    std::string body;
    const char* version;
  } cases[] = {
      {"asked for", "test \"$#$1\" = 1corvaneplayer.so && echo " + library,
       kGood},
      {"without a line end", "printf %s " + library, kGood},
      {"second line", "echo /missing; echo " + library, nullptr},
      {"nothing", "exit 1", nullptr},
      {"a directory", "echo ~", nullptr},
      {"a name that the loader would search for", "echo libc.so.6", nullptr},
      {"over 1023 bytes", "echo " + long_path, nullptr},
      {"never-ending", "while echo " + library + "; do :; done", kGood},
  };
  home_.Write("libc.so.6", "not a library");
  const fs::path former = fs::current_path();
  fs::current_path(home_.Path());
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    MakeLocate(c.body);
    const char* version = nullptr;
    EXPECT_EQ(FindPluginVersion(&version) == PluginState::kNotInstalled,
              c.version == nullptr);
    EXPECT_STREQ(version, c.version);
  }
  fs::current_path(former);
  Install("other", ".mozilla/plugins/corvaneplayer.so");
  EXPECT_STREQ(get_plugin_version(), kOther);
}

TEST_F(PluginVersion, StaysSilentAndReleasesEverything) {
  Install("good", "good/corvaneplayer.so");
  home_.Write("bad/corvaneplayer.so", "not a library");
  const std::size_t before = CountDescriptors();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  Search("~/bad:(:~/missing");
  MakeLocate("echo no database >&2; exit 1");
  EXPECT_EQ(get_plugin_version(), nullptr);
  Search("~/good");
  EXPECT_STREQ(get_plugin_version(), kGood);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(CountDescriptors(), before);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
}

}  // namespace
