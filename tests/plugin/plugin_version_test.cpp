#include "plugin/plugin_version.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "tests/support/privileges.h"
#include "tests/support/temporary_home.h"

namespace fs = std::filesystem;

namespace {

constexpr char kGood[] = "10.1 r53";
constexpr char kOther[] = "11.2";
constexpr uid_t kOtherUser = 1;

// A machine with no plug-in but those that a test installs, and with no
// command "locate" but the test's.
class PluginVersion : public testing::Test {
 protected:
  PluginVersion() {
    fs::create_directory(home_ / "bin");
    setenv("PATH", (home_ / "bin").c_str(), 1);
    unsetenv("MOZ_PLUGIN_PATH");
    umask(022);
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
  // A command that runs the shell lines given.
  void MakeLocate(const std::string& body) const {
    home_.Write("bin/locate", "#!/bin/sh\n" + body + "\n");
    fs::permissions(home_ / "bin/locate", fs::perms::owner_all);
  }

  TemporaryHome home_;

 private:
  const std::string path_ = std::getenv("PATH");
};

// And a candidate that does not load hides nothing beyond its directory.
TEST_F(PluginVersion, TellsWhatEachKindOfLibraryAnswers) {
  const std::tuple<std::string, const char*, PluginState> cases[] = {
      {"good", kGood, PluginState::kInstalled},
      {"failing", nullptr, PluginState::kNoVersion},
      {"textless", nullptr, PluginState::kNoVersion},
      {"digitless", "", PluginState::kNoVersion},
      {"entryless", nullptr, PluginState::kNoVersion},
      {"none", nullptr, PluginState::kNotInstalled},
  };
  home_.Write("text/corvaneplayer.so", "not a library");
  fs::create_directories(home_ / "directory/corvaneplayer.so");
  fs::create_directory(home_ / "pipe");
  ASSERT_EQ(mkfifo((home_ / "pipe/corvaneplayer.so").c_str(), 0600), 0);
  for (const auto& [stand_in, version, state] : cases) {
    SCOPED_TRACE(stand_in);
    if (stand_in != "none") {
      Install(stand_in, stand_in + "/libcorvaneplayer.so.2");
    }
    Search("~/text:~/directory:~/pipe::~/missing:~/" + stand_in);
    EXPECT_STREQ(get_plugin_version(), version);
    const char* found = "unset";
    EXPECT_EQ(FindPluginVersion(&found), state);
  }
}

TEST_F(PluginVersion, ComesFromTheFirstSourceThatLoads) {
  Install("good", "library");
  MakeLocate("echo ~/library");
  EXPECT_STREQ(get_plugin_version(), kGood);
  Install("other", ".mozilla/plugins/corvaneplayer.so");
  EXPECT_STREQ(get_plugin_version(), kOther);
  fs::create_directory(home_ / "linked");
  fs::create_symlink("../library", home_ / "linked/corvaneplayer.so");
  Search("$HOME/linked");
  EXPECT_STREQ(get_plugin_version(), kGood);
  // Loaded, so the search is over, though it has no version.
  Install("entryless", "a/corvaneplayer.so");
  Search("~/a:~/linked");
  EXPECT_EQ(get_plugin_version(), nullptr);
}

TEST_F(PluginVersion, IsLookedForInAWordThatRunsNothing) {
  Install("good", "a b/corvaneplayer.so");
  Install("other", "a/corvaneplayer.so");
  const std::pair<std::string, const char*> items[] = {
      {"~/a b", kOther},
      {"'" + home_ / "a b" + "'", kGood},
      {"$(true >~/ran; echo ~/a)", nullptr},
      {"`true >~/ran; echo ~/a`", nullptr},
      {"$NO_SUCH_VARIABLE", nullptr},
      {"~/a|", nullptr},
      {"\"~/a", nullptr},
      {" ", nullptr},
  };
  for (const auto& [item, version] : items) {
    SCOPED_TRACE(item);
    Search(item);
    EXPECT_STREQ(get_plugin_version(), version);
  }
  EXPECT_FALSE(home_.Has("ran"));
}

TEST_F(PluginVersion, TakesATrustedFileFromTheFirstLineThatLocatePrints) {
  Install("good", "folder/inner/library");
  fs::permissions(home_ / "folder/inner/library", fs::perms{0644});
  home_.Write("libc.so.6", "found by the loader, were it asked");
  fs::create_symlink("folder/inner/library", home_ / "link");
  const std::string library = home_ / "folder/inner/library";
  const std::string link = home_ / "link";
  const struct {
    std::string command;
    const char* version;
    // What has which mode and owner; the user alone may write to the rest.
    const char* place = "libc.so.6";
    unsigned int mode = 0644;
    uid_t owner = geteuid();
  } cases[] = {
      {"test \"$#$1\" = 1corvaneplayer.so && echo " + library, kGood},
      {"printf %s " + library, kGood},
      {"echo " + link, kGood},
      {"echo /missing; echo " + library, nullptr},
      {"echo no database >&2; exit 1", nullptr},
      {"echo ~", nullptr},
      {"echo libc.so.6", nullptr},
      {"echo ./link", nullptr},
      {"echo " + home_ / std::string(1024, '/') + "link", nullptr},
      {"while echo " + library + "; do :; done", kGood},
      {"echo " + library, nullptr, "folder/inner/library", 0664},
      {"echo " + library, nullptr, "folder/inner/library", 0646},
      {"echo " + library, nullptr, "folder/inner", 0775},
      {"echo " + link, nullptr, "folder/inner", 0757},
      {"echo " + library, nullptr, "folder", 0777},
      {"echo " + library, kGood, "folder", 01777},
      {"echo " + library, nullptr, "folder/inner/library", 0644, kOtherUser},
      {"echo " + library, nullptr, "folder", 0755, kOtherUser},
  };
  fs::current_path(home_.Path());
  const std::ptrdiff_t descriptors = CountDescriptors();
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  for (const auto& c : cases) {
    SCOPED_TRACE(c.command + ", " + c.place);
    // Only root may give files away.
    if (chown(c.place, c.owner, getegid()) != 0) continue;
    MakeLocate(c.command);
    const fs::perms former = fs::status(c.place).permissions();
    fs::permissions(c.place, fs::perms{c.mode});
    const char* found = nullptr;
    EXPECT_EQ(FindPluginVersion(&found) == PluginState::kNotInstalled,
              c.version == nullptr);
    EXPECT_STREQ(found, c.version);
    fs::permissions(c.place, former);
    EXPECT_EQ(chown(c.place, geteuid(), getegid()), 0);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(CountDescriptors(), descriptors);
  fs::current_path("/");
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is left";
}

}  // namespace
