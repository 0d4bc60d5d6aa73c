// Removal and measuring of trees that somebody made to be a nuisance.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

#include "platform/file_descriptor.h"
#include "store/settings_manager.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"

namespace fs = std::filesystem;

namespace {

// How often to remove under attack: REMOVALS for a long run by hand.
int RemovalCount() {
  const char* wanted = std::getenv("REMOVALS");
  return wanted ? std::atoi(wanted) : 500;
}

// The number of descriptors a removal may need, whatever the tree.
constexpr rlim_t kFewDescriptors = 64;

class Removal : public testing::Test {
 protected:
  [[nodiscard]] bool Remove(const std::string& name) {
    return files_.RemoveFileAtPath((home_ / name).c_str());
  }

  TemporaryHome home_;
  HomeFileManager files_{home_};

 private:
  const LoweredLimit limit_{RLIMIT_NOFILE, kFewDescriptors};
};

// Exchanges directories of the tree "t" with links to the precious directory,
// until it is killed. Follows no link itself.
[[noreturn]] void Attack(const std::string& home) {
  const int top = open(home.c_str(), O_PATH | O_DIRECTORY);
  const auto enter = [](int parent, const char* name) {
    return FileDescriptor(
        openat(parent, name, O_PATH | O_DIRECTORY | O_NOFOLLOW));
  };
  for (;;) {
    const FileDescriptor links = enter(top, "links");
    FileDescriptor directory = enter(top, ".");
    for (const char* name : {"t", "a", "b", "c"}) {
      for (int back_and_forth = 0; back_and_forth < 2; ++back_and_forth) {
        (void)renameat2(directory.Get(), name, links.Get(), name,
                        RENAME_EXCHANGE);
      }
      directory = enter(directory.Get(), name);
    }
  }
}

// A tree with a file on every level, all made where nobody swaps anything.
void MakeTree(const fs::path& top) {
  fs::create_directories(top / "a/b/c");
  for (const char* directory : {"", "a", "a/b", "a/b/c"}) {
    for (const char* file : {"1", "2", "3"}) {
      close(open((top / directory / file).c_str(), O_CREAT | O_WRONLY, 0600));
    }
  }
}

class Attacker {
 public:
  explicit Attacker(const fs::path& home) : process_(fork()) {
    if (process_ == 0) Attack(home.string());
  }
  ~Attacker() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
  Attacker(const Attacker&) = delete;
  Attacker& operator=(const Attacker&) = delete;

 private:
  pid_t process_;
};

TEST_F(Removal, UnderAttackNeverReachesWhatLinksLeadTo) {
  MakeTree(home_ / "precious");
  const std::vector<std::string> precious = home_.List();
  std::optional<Attacker> attacker(home_.Path());
  testing::internal::CaptureStderr();
  for (int i = 0; i < RemovalCount(); ++i) {
    const fs::path fresh = home_ / ("fresh" + std::to_string(i));
    MakeTree(fresh / "t");
    fs::create_directory(fresh / "links");
    for (const char* name : {"t", "a", "b", "c"}) {
      fs::create_symlink(home_ / "precious", fresh / "links" / name);
    }
    fs::rename(fresh / "links", home_ / "links");
    fs::rename(fresh / "t", home_ / "t");
    for (const char* name : {"t", "links"}) (void)Remove(name);
    for (const char* name : {"links", "t"}) {
      (void)renameat2(AT_FDCWD, (home_ / name).c_str(), AT_FDCWD,
                      (fresh / name).c_str(), 0);
    }
    (void)Remove(fresh.filename());
  }
  attacker.reset();
  // A directory that was a link for a moment may have been left.
  for (const auto& entry : fs::directory_iterator(home_.Path())) {
    const std::string name = entry.path().filename();
    EXPECT_TRUE(name == "precious" || Remove(name)) << name;
  }
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(home_.List(), precious);
}

TEST_F(Removal, TakesEveryNameThereCanBe) {
  fs::create_directories(home_ / "names/deep");
  for (int byte = 1; byte < 256; ++byte) {
    if (byte == '/' || byte == '.') continue;
    const std::string name(1, static_cast<char>(byte));
    home_.Write("names/" + name + "x", "");
    fs::create_directory(home_ / ("names/deep/" + name));
  }
  home_.Write("names/" + std::string(255, '\xFF'), "");
  EXPECT_TRUE(Remove("names"));
  EXPECT_FALSE(home_.Has("names"));
}

TEST_F(Removal, TakesManyEntriesAndManyLevels) {
  fs::create_directory(home_ / "many");
  for (int i = 0; i < 5000; ++i) {
    const std::string name = home_ / ("many/" + std::to_string(i));
    close(open(name.c_str(), O_CREAT | O_WRONLY, 0600));
  }
  EXPECT_TRUE(Remove("many"));
  EXPECT_FALSE(home_.Has("many"));
  int directory = open(home_.Path().c_str(), O_RDONLY | O_DIRECTORY);
  for (int level = 0; level < 2000; ++level) {
    ASSERT_EQ(mkdirat(directory, "d", 0700), 0);
    const int next = openat(directory, "d", O_RDONLY | O_DIRECTORY);
    close(directory);
    directory = next;
  }
  close(directory);
  EXPECT_TRUE(Remove("d"));
  EXPECT_FALSE(home_.Has("d"));
}

TEST_F(Removal, GoesAroundWhatCannotBeRemoved) {
  home_.Write("t/fixed/file", "");
  home_.Write("t/other/file", "");
  const int file = open((home_ / "t/fixed/file").c_str(), O_RDONLY);
  long flags = FS_IMMUTABLE_FL;
  if (ioctl(file, FS_IOC_SETFLAGS, &flags) != 0) {
    close(file);
    GTEST_SKIP() << "files cannot be made immutable here";
  }
  testing::internal::CaptureStderr();
  EXPECT_FALSE(Remove("t"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "RemoveFilesRecursively: unlink file: Operation not permitted\n");
  flags = 0;
  ioctl(file, FS_IOC_SETFLAGS, &flags);
  close(file);
  EXPECT_TRUE(home_.Has("t/fixed/file"));
  EXPECT_FALSE(home_.Has("t/other"));
}

TEST_F(Removal, LeavesAMountWhereItIs) {
  home_.Write("t/file", "");
  fs::create_directory(home_ / "t/mount");
  const std::string mount_point = home_ / "t/mount";
  if (mount("none", mount_point.c_str(), "tmpfs", 0, nullptr) != 0) {
    GTEST_SKIP() << "nothing can be mounted here";
  }
  testing::internal::CaptureStderr();
  EXPECT_FALSE(Remove("t"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "RemoveFilesRecursively: unlink dir: Device or resource busy\n");
  EXPECT_EQ(umount(mount_point.c_str()), 0);
  EXPECT_FALSE(home_.Has("t/file"));
  EXPECT_TRUE(home_.Has("t/mount"));
}

TEST_F(Removal, PassesOverWhatCannotBeRead) {
  home_.Write("t/closed/file", "");
  home_.Write("t/other/file", "");
  const OrdinaryUser user(home_);
  fs::permissions(home_ / "t/closed", fs::perms::none);
  testing::internal::CaptureStderr();
  EXPECT_TRUE(Remove("t"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(home_.Has("t/closed"));
  EXPECT_FALSE(home_.Has("t/other"));
}

TEST_F(Removal, IsMeasuredWithoutLoopOrOverflow) {
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 42;
  home_.Write("t/file", "");
  // The file system may have a lower limit for one file.
  if (truncate((home_ / "t/file").c_str(), kHuge) != 0) {
    GTEST_SKIP() << "there are no large files here";
  }
  fs::create_directory_symlink(home_ / "t", home_ / "t/circle");
  fs::create_directory_symlink(".", home_ / "t/self");
  fs::create_symlink("nowhere", home_ / "t/broken");
  const std::uint64_t size = files_.SizeOfFileAtPath((home_ / "t").c_str());
  EXPECT_GE(size, kHuge);
  EXPECT_LT(size, kHuge + (1 << 20));
}

// Every settings file of the store in turn is something that it should not be.
struct OddPlace {
  const char* what;
  void (*make)(const std::string& place, const std::string& precious);
};
constexpr OddPlace kOddPlaces[] = {
    {"a pipe",
     [](const std::string& place, const std::string&) {
       ASSERT_EQ(mkfifo(place.c_str(), 0600), 0);
     }},
    {"a directory",
     [](const std::string& place, const std::string&) {
       fs::create_directories(place + "/inside");
     }},
    {"a link to a file of others",
     [](const std::string& place, const std::string& precious) {
       fs::create_symlink(precious + "/1", place);
     }},
    {"a link to itself",
     [](const std::string& place, const std::string&) {
       fs::create_symlink(place, place);
     }},
    {"a link to a device",
     [](const std::string& place, const std::string&) {
       fs::create_symlink("/dev/tty", place);
     }},
};

TEST_F(Removal, OfOddThingsInPlacesOfSettingsFilesTouchesNothingElse) {
  MakeTree(home_ / "precious");
  const std::string sys = home_ / TemporaryHome::kSettings;
  for (const OddPlace& odd : kOddPlaces) {
    SCOPED_TRACE(odd.what);
    fs::remove_all(home_ / ".orbelline");
    fs::create_directories(sys + "/#site.example");
    odd.make(sys + "/settings.sol", home_ / "precious");
    odd.make(sys + "/#site.example/settings.sol", home_ / "precious");
    testing::internal::CaptureStderr();  // an empty file has no header
    SASM::SettingsManager manager(&files_);
    EXPECT_TRUE(manager.AddDomainWithDefaultSettings("site.example"));
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(fs::is_regular_file(
        fs::symlink_status(sys + "/#site.example/settings.sol")));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(sys + "/settings.sol")));
    EXPECT_EQ(fs::file_size(home_ / "precious/1"), 0U);
  }
}

TEST_F(Removal, OfASiteWhoseDirectoryIsALinkTakesTheLinkOnly) {
  const std::string sys = home_ / TemporaryHome::kSettings;
  home_.Write("precious/settings.sol", "precious");
  fs::create_directories(sys);
  fs::create_directory_symlink(home_ / "precious", sys + "/#site.example");
  SASM::SettingsManager manager(&files_);
  EXPECT_FALSE(manager.AddDomainWithDefaultSettings("site.example"));
  EXPECT_FALSE(manager.HasSetting("nothing", "site.example"));
  EXPECT_EQ(home_.Read("precious/settings.sol"), "precious");
  EXPECT_TRUE(manager.RemoveDomainInformation("site.example", true, true));
  EXPECT_FALSE(fs::exists(fs::symlink_status(sys + "/#site.example")));
  EXPECT_EQ(home_.Read("precious/settings.sol"), "precious");
}

TEST_F(Removal, OfStoredDataNeverGoesThroughALinkToIt) {
  const std::string stored = home_ / TemporaryHome::kSharedObjects;
  home_.Write("precious/site.example/file", "precious");
  fs::create_directories(stored);
  fs::create_directory_symlink(home_ / "precious", stored + "/A");
  testing::internal::CaptureStderr();
  SASM::SettingsManager manager(&files_);
  EXPECT_FALSE(manager.DeleteDomainStorage("site.example"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "RemoveFilesRecursively: stat: Not a directory\n");
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorage(true, true));
  EXPECT_FALSE(fs::exists(fs::symlink_status(stored + "/A")));
  fs::create_directory_symlink(home_ / "precious", stored + "/B");
  // Behind a "/" a link would be what it leads to.
  EXPECT_TRUE(manager.DeleteDomainStorage("B/"));
  EXPECT_EQ(home_.Read("precious/site.example/file"), "precious");
}

TEST_F(Removal, AndEverythingElseRefusesNamesThatLeadOutside) {
  home_.Write(".orbelline/Corvane_Player/precious/settings.sol", "precious");
  SASM::SettingsManager manager(&files_);
  const std::vector<std::string> before = home_.List();
  for (const char* name :
       {"../../../../../precious", "a/../../../../../../precious", "x/..",
        "/../../../../../precious"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(manager.AddDomainWithDefaultSettings(name));
    EXPECT_FALSE(manager.RemoveDomainInformation(name, true, true));
    EXPECT_FALSE(manager.RemoveSettingWithKey("klimit", name));
  }
  EXPECT_EQ(home_.List(), before);
}

}  // namespace
