// Removal and measuring of trees that somebody made to be a nuisance.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>

#include "platform/file_descriptor.h"
#include "store/settings_manager.h"
#include "tests/support/call_hooks.h"
#include "tests/support/home_file_manager.h"
#include "tests/support/privileges.h"
#include "tests/support/settings_image.h"

namespace fs = std::filesystem;

namespace {

// How often to remove under attack: REMOVALS for a long run by hand.
int RemovalCount() {
  const char* wanted = std::getenv("REMOVALS");
  return wanted ? std::atoi(wanted) : 1500;
}

// The number of descriptors a removal may need, whatever the tree.
constexpr rlim_t kFewDescriptors = 64;

class Removal : public testing::Test {
 protected:
  [[nodiscard]] bool Remove(const std::string& name) {
    return files_.RemoveFileAtPath((home_ / name).c_str());
  }
  void LinkToPrecious(const std::string& name) const {
    const fs::path link = home_ / name;
    fs::create_directories(link.parent_path());
    fs::create_directory_symlink(home_ / "precious", link);
  }

  TemporaryHome::Snapshot Precious() const {
    TemporaryHome::Snapshot files;
    for (const auto& [name, bytes] : home_.Take()) {
      if (name.starts_with("precious")) files[name] = bytes;
    }
    return files;
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

void Touch(const fs::path& file) {
  close(open(file.c_str(), O_CREAT | O_WRONLY, 0600));
}

// A tree with a file on every level, all made where nobody swaps anything.
void MakeTree(const fs::path& top) {
  fs::create_directories(top / "a/b/c");
  for (const char* directory : {"", "a", "a/b", "a/b/c"}) {
    for (const char* file : {"1", "2", "3"}) Touch(top / directory / file);
  }
}

class Attacker {
 public:
  explicit Attacker(const std::function<void()>& attack) : process_(fork()) {
    if (process_ == 0) attack();
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
  std::optional<Attacker> attacker([this] { Attack(home_.Path()); });
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

TEST_F(Removal, TakesEveryNameThereCanBeHoweverMany) {
  fs::create_directories(home_ / "names/deep");
  for (int byte = 1; byte < 256; ++byte) {
    if (byte == '/' || byte == '.') continue;
    const std::string name(1, static_cast<char>(byte));
    home_.Write("names/" + name + "x", "");
    fs::create_directory(home_ / ("names/deep/" + name));
  }
  home_.Write("names/" + std::string(255, '\xFF'), "");
  for (int i = 0; i < 5000; ++i)
    Touch(home_.Path() / "names" / std::to_string(i));
  EXPECT_TRUE(Remove("names"));
  EXPECT_FALSE(home_.Has("names"));
}

TEST_F(Removal, GoesAroundWhatFails) {
  using faults::Effect;
  const struct {
    faults::Fault fault;
    int first_call;  // below the tree's top
    const char* complaint;
  } cases[] = {
      {{"file", faults::kUnlink, Effect::kFail, EPERM},
       1,
       "RemoveFilesRecursively: unlink file: Operation not permitted\n"},
      {{"mount", faults::kRmdir, Effect::kFail, EBUSY},
       0,
       "RemoveFilesRecursively: unlink dir: Device or resource busy\n"},
      {{"unreadable", faults::kOpen, Effect::kFail, EACCES}, 2, ""},
  };
  for (const auto& c : cases) {
    bool is_met = true;
    for (int n = c.first_call; is_met; ++n) {
      SCOPED_TRACE(c.fault.name + std::to_string(n));
      for (const char* name : {"t/a/1", "t/a/2", "t/b/1", "t/b/2"}) {
        home_.Write(name, "");
      }
      testing::internal::CaptureStderr();
      faults::Arm(c.fault, n);
      const bool is_removed = Remove("t");
      is_met = faults::Disarm();
      const std::string printed = testing::internal::GetCapturedStderr();
      EXPECT_EQ(printed, is_met ? c.complaint : "");
      EXPECT_EQ(is_removed, printed.empty());
      EXPECT_LE(home_.List().size(), is_met ? 4u : 0u) << "one branch stays";
    }
  }
}

constexpr char kSite[] = "site.example";

TEST_F(Removal, OfOddThingsInPlacesOfSettingsFilesTouchesNothingElse) {
  MakeTree(home_ / "precious");
  const std::string files[] = {home_ / TemporaryHome::MasterFile(),
                               home_ / TemporaryHome::SettingsFileOf(kSite)};
  for (const std::string command :
       {"mkfifo \"$place\"", "mkdir -p \"$place/inside\"",
        "ln -s ~/precious/1 \"$place\"", "ln -s \"$place\" \"$place\"",
        "ln -s /dev/tty \"$place\""}) {
    SCOPED_TRACE(command);
    fs::remove_all(home_ / ".orbelline");
    fs::create_directories(fs::path(files[1]).parent_path());
    for (const std::string& file : files) {
      setenv("place", file.c_str(), 1);
      ASSERT_EQ(std::system(command.c_str()), 0);
    }
    testing::internal::CaptureStderr();  // an empty file has no header
    SASM::SettingsManager manager(&files_);
    EXPECT_TRUE(manager.AddDomainWithDefaultSettings(kSite));
    testing::internal::GetCapturedStderr();
    for (const std::string& file : files) {
      EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(file)));
    }
    EXPECT_EQ(home_.Read("precious/1"), "");
  }
}

TEST_F(Removal, AndEveryChangeStopAtALinkOnTheWay) {
  const std::string base = ".orbelline/Corvane_Player";
  const std::string stored = TemporaryHome::kSharedObjects;
  const std::string settings = TemporaryHome::kSettings;
  const std::vector<std::string> links = {
      stored,   stored + "/A",           stored + "/A/sub",
      settings, settings + "/#" + kSite, base + "/tessary.example"};
  const image::Bytes limit = image::Entry("klimit", image::Number(3));
  for (const std::string& link : links) {
    SCOPED_TRACE(link);
    fs::remove_all(home_ / base);
    home_.Write(stored + "/A/sub/data", "x");
    fs::remove_all(home_ / link);
    for (const char* name : {"settings.sol", "#site.example/settings.sol",
                             "support/corvaneplayer/sys/settings.sol"}) {
      home_.Write(std::string("precious/") + name, image::File("n", limit));
    }
    home_.Write("precious/site.example", "a file");
    LinkToPrecious(link);
    const TemporaryHome::Snapshot precious = Precious();
    testing::internal::CaptureStderr();
    SASM::SettingsManager manager(&files_);
    (void)manager.AddDomainWithDefaultSettings(kSite);
    SASM::SettingDataItem item("klimit", 1.0);
    (void)manager.SetSetting(&item, "klimit", kSite);
    (void)manager.RemoveDomainInformation(kSite, true, true);
    (void)manager.RemoveDomainInformation("sub/site.example", true, true);
    (void)manager.RemoveAllSettingsAndOrLocalStorageForTimeRange(true, true, 0,
                                                                 1UL << 40);
    EXPECT_EQ(manager.RemoveAllSettingsAndOrLocalStorage(true, true),
              link != stored && link != base + "/tessary.example");
    (void)testing::internal::GetCapturedStderr();
    EXPECT_EQ(Precious(), precious);
  }
}

TEST_F(Removal, LetsTheDataDirectoriesBeLinks) {
  home_.Write("elsewhere/data", "x");
  fs::create_directories(home_ / "elsewhere/settings");
  fs::create_directories(home_ / ".orbelline");
  fs::create_directory_symlink(home_ / "elsewhere/settings",
                               home_ / ".orbelline/Corvane_Player");
  SASM::SettingsManager manager(&files_);
  EXPECT_TRUE(manager.AddDomainWithDefaultSettings(kSite));
  EXPECT_TRUE(manager.RemoveDomainInformation(kSite, true, true));
  EXPECT_TRUE(manager.RemoveAllSettingsAndOrLocalStorage(true, true));
  EXPECT_TRUE(home_.Has("elsewhere/data"));
}

// Puts links and hard links to a precious file where settings are written,
// and exchanges the site's directory with a link, until it is killed.
[[noreturn]] void AttackSettings(const TemporaryHome& home) {
  const fs::path site =
      home / (std::string(TemporaryHome::kSettings) + "/#" + kSite);
  const fs::path precious = home / "precious/settings.sol";
  const std::string swap = home / "swap";
  for (std::error_code ignored;;) {
    fs::create_hard_link(precious, site / "settings.sol", ignored);
    fs::create_symlink(precious, site / "settings.sol", ignored);
    for (int back_and_forth = 0; back_and_forth < 2; ++back_and_forth) {
      (void)renameat2(AT_FDCWD, site.c_str(), AT_FDCWD, swap.c_str(),
                      RENAME_EXCHANGE);
    }
  }
}

TEST_F(Removal, AndChangesUnderAttackNeverReachWhatLinksLeadTo) {
  home_.Write("precious/settings.sol", "precious");
  LinkToPrecious("swap");
  SASM::SettingsManager manager(&files_);
  EXPECT_TRUE(manager.AddDomainWithDefaultSettings(kSite));
  testing::internal::CaptureStderr();
  {
    const Attacker attacker([this] { AttackSettings(home_); });
    for (int i = 0; i < RemovalCount(); ++i) {
      SASM::SettingDataItem item("klimit", double(i));
      (void)manager.SetSetting(&item, "klimit", kSite);
    }
  }
  (void)testing::internal::GetCapturedStderr();
  EXPECT_EQ(home_.Read("precious/settings.sol"), "precious");
  EXPECT_EQ(home_.List().front(), ".orbelline");
}

}  // namespace
