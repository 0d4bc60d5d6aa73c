// Every operation of the store, while each of its system calls and allocations
// fails in turn.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <span>

#include "model/storage_setting.h"
#include "platform/drm_license_manager.h"
#include "settings/out_of_memory.h"
#include "store/default_settings.h"
#include "tests/support/call_hooks.h"
#include "tests/support/privileges.h"
#include "tests/support/store_test.h"

namespace {

namespace fs = std::filesystem;

using faults::Effect;
using faults::Fault;
using testing::AnyOf;
using testing::IsEmpty;
using Snapshot = TemporaryHome::Snapshot;

constexpr Fault kNoOpenat2 = {"openat2: missing", faults::kOpenat2,
                              Effect::kFailOnwards, ENOSYS};
constexpr Fault kFaults[] = {
    {"open: too many files", faults::kOpen, Effect::kFail, EMFILE},
    {"every open from here on", faults::kOpen, Effect::kFailOnwards, EMFILE},
    {"open: interrupted", faults::kOpen, Effect::kFail, EINTR},
    kNoOpenat2,
    {"read: bad disk", faults::kRead, Effect::kFail, EIO},
    {"read: interrupted", faults::kRead, Effect::kFail, EINTR},
    {"write: bad disk", faults::kWrite, Effect::kFail, EIO},
    {"write: interrupted", faults::kWrite, Effect::kFail, EINTR},
    {"short read", faults::kRead, Effect::kShort},
    {"short write", faults::kWrite, Effect::kShort},
    {"disk full", faults::kWrite, Effect::kDiskFull, ENOSPC},
    {"close: bad disk", faults::kClose, Effect::kFail, EIO},
    {"mkdir: read-only", faults::kMkdir, Effect::kFail, EROFS},
    {"unlink: not permitted", faults::kUnlink, Effect::kFail, EPERM},
    {"every unlink", faults::kUnlink, Effect::kFailOnwards, EPERM},
    {"rmdir: busy", faults::kRmdir, Effect::kFail, EBUSY},
    {"opendir: no access", faults::kOpendir, Effect::kFail, EACCES},
    {"readdir: bad disk", faults::kReaddir, Effect::kFail, EIO},
    {"stat: no access", faults::kStat, Effect::kFail, EACCES},
    {"killed before", faults::kChangesDisk, Effect::kKill},
    {"killed within", faults::kWrite, Effect::kKillHalfway},
};
constexpr Fault kAllocations[] = {
    {"allocation", faults::kAllocate, Effect::kFail, ENOMEM},
    {"every allocation", faults::kAllocate, Effect::kFailOnwards, ENOMEM},
};
// Exit status of a child whose fault was met and did not end it.
constexpr int kMet = 2;

constexpr char kA[] = "a.example";
constexpr char kB[] = "b.example";
constexpr char kNew[] = "c.example";
constexpr char kMasterDomain[] = "___MASTER_DOMAIN";

// Which home an operation is tried on; kPanel: by a panel that has started.
enum Home { kNothing, kFiles, kPanel };

// What is known of an operation that meets a fault.
enum Rule : unsigned int {
  // Its result says whether the disk was changed as intended.
  kReports = 1 << 0,
  // A site that is listed and stores data has its settings.
  kListsWhatIsThere = 1 << 1,
  // The list and the limit of all sites in memory are the new ones.
  kForgetsAtOnce = 1 << 2,
  // It removes settings itself.
  kRemovesSettings = 1 << 3,
};

struct Operation {
  const char* name;
  Home home;
  bool (*run)(StoreTest& panel);
  // Beginnings of the paths that may change: a regular expression.
  std::string may_change;
  unsigned int rules = 0;
};

bool Start(StoreTest& panel) {
  panel.Start();
  SettingBase::mSettingsManager = &*panel.manager_;
  return true;
}

bool ChangeSetting(StoreTest& panel) {
  return panel.SetNumber("klimit", 1024, kA);
}

bool AddSite(StoreTest& panel) {
  return panel.manager_->AddDomainWithDefaultSettings(kNew);
}

bool RemoveSite(StoreTest& panel) {
  return panel.manager_->RemoveDomainInformation(kA, true, true);
}

bool BlockStorageEverywhere(StoreTest&) {
  StorageSetting limit("defaultklimit", kMasterDomain);
  return limit.setPermissionState(kPermissionStateAlwaysDeny).commit();
}

bool DeleteAll(StoreTest& panel) {
  bool done = panel.manager_->RemoveAllSettingsAndOrLocalStorage(true, true);
  done = panel.manager_->RemoveAssetCache() && done;
  return SASM::DRMLicenseManager(&panel.files_).Reset() && done;
}

bool DeleteByAge(StoreTest& panel) {
  const bool done =
      panel.manager_->RemoveAllSettingsAndOrLocalStorageForTimeRange(
          true, true, -1UL, 1UL << 40);
  return panel.manager_->GetDomains() && done;  // has the defaults loaded
}

const std::string kMaster = TemporaryHome::MasterFile();
const std::string kSettings = TemporaryHome::kSettings;
const std::string kStorage = TemporaryHome::StorageOf("");
const Operation kOperations[] = {
    {"first start", kNothing, Start,
     ".orbelline/Corvane_Player/tessary.example/"},
    {"start", kFiles, Start, kMaster},
    {"change a setting", kPanel, ChangeSetting,
     TemporaryHome::SettingsFileOf(kA), kReports},
    {"add a site", kPanel, AddSite, kMaster + "|" + kSettings + "/#c.example/",
     kReports | kListsWhatIsThere},
    {"remove a site", kPanel, RemoveSite,
     kMaster + "|" + kSettings + "/#a.example/|" + kStorage + "a.example/",
     kReports | kListsWhatIsThere},
    {"block storage for all sites", kPanel, BlockStorageEverywhere,
     kMaster + "|" + kSettings + "/#[ab].example/settings.sol|" + kStorage +
         "[ab].example/",
     kForgetsAtOnce},
    {"delete by age", kPanel, DeleteByAge, kSettings + "/|" + kStorage,
     kRemovesSettings},
    {"delete all", kPanel, DeleteAll,
     kSettings + "/|" + kStorage + "|" + TemporaryHome::kAssetCache + "|" +
         TemporaryHome::kLicences,
     kForgetsAtOnce},
};

// Runs `body` in a child, under the programs' own handler, with the n-th call
// meeting the fault. The child's exit status; 0 when the fault was not met.
template <typename Body>
int InChild(const Fault& fault, int n, Body body) {
  const pid_t child = fork();
  if (child == 0) {
    ExitWhenOutOfMemory();
    faults::Arm(fault, n);
    body();
    _exit(faults::Disarm() ? kMet : 0);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
  return WEXITSTATUS(status);
}

// The parent starts no panel, so that each child looks up the home itself.
TEST(OutOfMemory, EndsAFirstStartWithOneLineAndUsesNoOtherHome) {
  if (!faults::kAllocationsCanFail) GTEST_SKIP() << "a sanitizer's allocator";
  const TemporaryHome password_home;
  home_in_password_database = password_home.Path().c_str();
  const TemporaryHome home;
  int status = kMet;
  for (int n = 0; status != 0 && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    testing::internal::CaptureStderr();
    status = InChild(kAllocations[0], n, [] {
      LinuxFileManager files;
      SASM::SettingsManager manager(&files);
      (void)manager.RemoveAllSettingsAndOrLocalStorage(true, true);
    });
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status == EXIT_FAILURE, printed == "Out of memory.\n") << printed;
    EXPECT_THAT(password_home.List(), IsEmpty());
  }
}

// Nothing else may change.
void ExpectChangesIn(const std::string& may_change, const Snapshot& before,
                     const Snapshot& after) {
  std::vector<std::pair<std::string, std::string>> changes;
  std::ranges::set_symmetric_difference(before, after,
                                        std::back_inserter(changes));
  for (const auto& [path, content] : changes) {
    EXPECT_THAT(path, testing::ContainsRegex("^(" + may_change + ")"))
        << content;
  }
}

std::string Content(const Snapshot& snapshot, const std::string& path) {
  const auto found = snapshot.find(path);
  return found == snapshot.end() ? "nothing" : found->second;
}

// The number of settings files that are neither as before nor as complete.
int CountTorn(const Snapshot& before, const Snapshot& now,
              const Snapshot& complete) {
  return static_cast<int>(std::ranges::count_if(before, [&](const auto& file) {
    const auto& [path, content] = file;
    const std::string held = Content(now, path);
    return path.ends_with("settings.sol") && held != content &&
           held != Content(complete, path);
  }));
}

bool EndsProcess(const Fault& fault) {
  return fault.calls == faults::kAllocate || fault.effect == Effect::kKill ||
         fault.effect == Effect::kKillHalfway;
}

// The settings files that a fault may cost: 0 or 1, or any number.
int MostTorn(const Operation& operation, const Fault& fault) {
  const bool is_allocation = fault.calls == faults::kAllocate;
  if (EndsProcess(fault)) {
    return is_allocation && !(operation.rules & kRemovesSettings) ? 0 : 1;
  }
  if (operation.rules & kRemovesSettings) return INT_MAX;
  // A process that can open nothing any more from the very call on that creates
  // the file cannot take the old one back. What the user may not read is
  // replaced.
  return fault.effect == Effect::kFailOnwards || fault.error == EACCES ? 1 : 0;
}

// A home with every kind of file in it.
class Faults : public StoreTest {
 protected:
  struct State {
    Snapshot disk;
    // The sites, the limit of all, and those of listed sites.
    std::vector<std::string> memory;
  };

  Faults();
  ~Faults() override {
    SettingBase::mSettingsManager = nullptr;
    std::fclose(std::exchange(stderr, errors_));
  }

  // Restores the files and starts the panel as the operation needs them.
  void Prepare(const Operation& operation) {
    manager_.reset();
    home_.Restore(operation.home == kNothing ? around_ : whole_);
    if (operation.home == kPanel) ::Start(*this);
  }
  // The disk, and what the panel holds when there is one.
  State Look() {
    State state = {home_.Take(), {}};
    if (!manager_) return state;
    const std::vector<std::string> sites = Listed();
    state.memory = {testing::PrintToString(sites), Held("defaultklimit")};
    for (const char* site : {kA, kB}) {
      const bool is_listed = std::ranges::count(sites, site) > 0;
      state.memory.push_back(is_listed ? Held("klimit", site) : "not listed");
    }
    return state;
  }
  // Runs the operation; true when the n-th call met the fault.
  bool Try(const Operation& operation, const Fault& fault, int n,
           const State& complete);
  // What must be in memory after a failed system call.
  void CheckMemory(const Operation& operation, const State& before,
                   const State& complete, bool is_done, const Snapshot& after);
  // Runs the operation; at its n-th call the directory is exchanged for a link,
  // or for the time of one call, without openat2. False when it is not. A hard
  // link takes the place of a settings file as soon as it is removed.
  bool TryExchange(const Operation& operation, const std::string& place, int n,
                   bool is_back);
  // Runs every operation with every fault at each of its calls.
  void TryAll(std::span<const Fault> faults);
  // All defaults and the list of sites are there.
  void ExpectWhole() {
    for (const auto& row : SASM::DefaultMasterSettings()) {
      EXPECT_NE(Held(row.key), "none") << row.key;
    }
    EXPECT_TRUE(manager_->GetDomains());
  }
  // A new panel is whole, a site can be added and changed, and the next start
  // finds it.
  void ExpectUsable(const Snapshot& after) {
    constexpr char kLater[] = "later.example";
    if (!known_usable_.insert(after).second) return;
    Start();
    ExpectWhole();
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings(kLater));
    EXPECT_TRUE(SetNumber("klimit", 1024, kLater));
    Start();
    ExpectWhole();
    EXPECT_EQ(Held("klimit", kLater), "klimit=1024");
  }

  // Where a sanitizer's messages go; the store's are dropped.
  std::FILE* const errors_ =
      std::exchange(stderr, std::fopen("/dev/null", "w"));
  // The files of other programs, without and with those of the panel.
  Snapshot around_;
  Snapshot whole_;
  // Many faults leave the same files.
  std::set<Snapshot> known_usable_;
};

Faults::Faults() {
  for (const char* name :
       {".profile", "settings.sol", ".orbelline/other/data",
        ".orbelline/Corvane_Player/notes", ".tessary/Corvane_Player/notes"}) {
    home_.Write(name, "another program's");
  }
  around_ = home_.Take();
  Start();
  SetNumber("defaultklimit", 10, kMasterDomain);
  for (const char* site : {kA, kB, kNew}) {
    if (site != kNew) manager_->AddDomainWithDefaultSettings(site);
    home_.Write(TemporaryHome::StorageOf(site) + "/one.sol", "one");
    home_.Write(TemporaryHome::StorageOf(site) + "/deep/er/two.sol", "two");
  }
  home_.Write(std::string(TemporaryHome::kAssetCache) + "/d/asset", "asset");
  home_.Write(std::string(TemporaryHome::kLicences) + "/licence", "licence");
  whole_ = home_.Take();
}

bool Faults::Try(const Operation& operation, const Fault& fault, int n,
                 const State& complete) {
  Prepare(operation);
  const State before = Look();
  int status = 0;
  bool result = false;
  if (EndsProcess(fault)) {
    status = InChild(fault, n, [&] { operation.run(*this); });
    // A failed malloc inside the C library only fails that call.
    const bool may_go_on = fault.calls == faults::kAllocate;
    EXPECT_THAT(status, AnyOf(0, may_go_on ? kMet : faults::kKilled,
                              may_go_on ? EXIT_FAILURE : faults::kKilled));
  } else {
    const auto descriptors = CountDescriptors();
    faults::Arm(fault, n);
    result = operation.run(*this);
    status = faults::Disarm() ? kMet : 0;
    EXPECT_EQ(CountDescriptors(), descriptors);
  }
  const Snapshot after = home_.Take();
  ExpectChangesIn(operation.may_change, before.disk, after);
  EXPECT_LE(CountTorn(before.disk, after, complete.disk),
            MostTorn(operation, fault));
  const bool is_done = result && (operation.rules & kReports);
  const bool is_overcome = fault.effect == Effect::kShort ||
                           fault.error == EINTR || fault.error == ENOSYS;
  EXPECT_TRUE(result || !is_overcome);
  if (is_overcome || (is_done && (fault.calls & faults::kChangesDisk))) {
    EXPECT_EQ(after, complete.disk);
  }
  if (!EndsProcess(fault)) {
    CheckMemory(operation, before, complete, is_done, after);
  }
  ExpectUsable(after);
  return status != 0;
}

void Faults::CheckMemory(const Operation& operation, const State& before,
                         const State& complete, bool is_done,
                         const Snapshot& after) {
  ExpectWhole();
  if (operation.home != kPanel) return;
  const std::vector<std::string> memory = Look().memory;
  for (std::size_t i = 0; i < memory.size(); ++i) {
    const bool is_new = is_done || (i < 2 && operation.rules & kForgetsAtOnce);
    EXPECT_THAT(memory[i],
                AnyOf(complete.memory[i],
                      is_new ? complete.memory[i] : before.memory[i]));
  }
  if (!(operation.rules & kListsWhatIsThere)) return;
  for (const std::string& site : Listed()) {
    EXPECT_TRUE(!after.contains(TemporaryHome::StorageOf(site) + "/one.sol") ||
                after.contains(TemporaryHome::SettingsFileOf(site)));
  }
}

// Directories on the way to what operations change.
const std::string kPlaces[] = {
    kSettings,
    kSettings + "/#a.example",
    TemporaryHome::kSharedObjects,
    std::string(TemporaryHome::kSharedObjects) + "/QK5SFBDP",
    kStorage + kA + "/deep",
};

void Faults::TryAll(std::span<const Fault> faults) {
  std::set<std::string> met;
  for (const Operation& operation : kOperations) {
    Prepare(operation);
    EXPECT_TRUE(operation.run(*this));
    const State complete = Look();
    for (const Fault& fault : faults) {
      bool is_met = true;
      for (int n = 0; is_met; ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << fault.name << " " << n);
        is_met = Try(operation, fault, n, complete);
        if (is_met) met.insert(fault.name);
        if (HasFailure()) return;
      }
    }
  }
  EXPECT_EQ(met.size(), faults.size()) << "a call goes another way";
}

bool Faults::TryExchange(const Operation& operation, const std::string& place,
                         int n, bool is_back) {
  int calls = 0;
  int exchanges = 0;
  before_call = [&](unsigned int, const std::string&) {
    std::error_code ignored;
    fs::create_hard_link(home_ / ".profile",
                         home_ / TemporaryHome::SettingsFileOf(kA), ignored);
    if (calls++ < n || exchanges > is_back) return;
    exchanges += renameat2(AT_FDCWD, (home_ / "link").c_str(), AT_FDCWD,
                           (home_ / place).c_str(), RENAME_EXCHANGE) == 0;
  };
  if (is_back) faults::Arm(kNoOpenat2, 0);
  (void)operation.run(*this);
  (void)faults::Disarm();
  before_call = nullptr;
  EXPECT_EQ(home_.Read(".profile"), "another program's");
  return exchanges > 0;
}

TEST_F(Faults, ADirectoryExchangedForALinkLeadsNowhere) {
  const TemporaryHome elsewhere;
  for (const std::string& place : kPlaces) {
    home_.Restore(whole_);
    elsewhere.Restore({});
    fs::copy(home_ / place, elsewhere.Path(), fs::copy_options::recursive);
    const Snapshot precious = elsewhere.Take();
    for (const Operation& operation : kOperations) {
      for (const bool is_back : {false, true}) {
        bool is_exchanged = true;
        for (int n = 0; is_exchanged && !HasFailure(); ++n) {
          SCOPED_TRACE(testing::Message() << operation.name << ", " << place
                                          << " " << n << ", " << is_back);
          Prepare(operation);
          fs::create_directory_symlink(elsewhere.Path(), home_ / "link");
          is_exchanged = TryExchange(operation, place, n, is_back);
          EXPECT_EQ(elsewhere.Take(), precious);
        }
      }
    }
  }
}

TEST_F(Faults, LeaveEverythingElseAloneAndTheNextStartUsable) {
  TryAll(kFaults);
}

TEST_F(Faults, OutOfMemoryAtAnyMomentTearsNoFile) {
  if (!faults::kAllocationsCanFail) GTEST_SKIP() << "a sanitizer's allocator";
  TryAll(kAllocations);
}

}  // namespace
