// Every operation of the store, while each of its system calls and allocations
// fails in turn.
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
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

using faults::Effect;
using faults::Fault;
using testing::AnyOf;
using Home = TemporaryHome;
using Snapshot = Home::Snapshot;

constexpr Fault kFaults[] = {
    {"open: too many files", faults::kOpen, Effect::kFail, EMFILE},
    {"every open from here on", faults::kOpen, Effect::kFailOnwards, EMFILE},
    {"open: interrupted", faults::kOpen, Effect::kFail, EINTR},
    {"openat2: missing", faults::kOpenat2, Effect::kFailOnwards, ENOSYS},
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
};
constexpr Fault kKills[] = {
    {"killed before", faults::kChangesDisk, Effect::kKill},
    {"killed within", faults::kWrite, Effect::kKillHalfway},
};
constexpr Fault kAllocations[] = {
    {"allocation", faults::kAllocate, Effect::kFail, ENOMEM},
    {"every allocation", faults::kAllocate, Effect::kFailOnwards, ENOMEM},
};
// An operation makes fewer calls than this.
constexpr int kMostCalls = 5000;
// Exit status of a child whose fault was met and did not end it.
constexpr int kMet = 2;

constexpr char kA[] = "a.example";
constexpr char kB[] = "b.example";
constexpr char kNew[] = "c.example";
constexpr char kMasterDomain[] = "___MASTER_DOMAIN";

struct Operation {
  enum On { kNothing, kFiles, kPanel };

  const char* name;
  On on;  // kPanel: one that was started before
  bool (*run)(StoreTest& panel);
  // Beginnings of the paths that may change.
  std::vector<std::string> may_change;
  // True when the result says whether the disk was changed as intended.
  bool reports = true;
  // How many of the values in Memory() are the new ones whatever fails.
  unsigned int certain = 0;
  // True when a site that is listed and stores data must have its settings.
  bool lists_what_is_there = false;
  // False when the operation itself removes settings.
  bool keeps_settings = true;
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

const std::string kMaster = Home::MasterFile();
const std::string kSettings = Home::kSettings;
const std::string kStorage = Home::StorageOf("");
const Operation kOperations[] = {
    {.name = "first start",
     .on = Operation::kNothing,
     .run = Start,
     .may_change = {".orbelline/Corvane_Player/tessary.example/"},
     .reports = false},
    {.name = "start",
     .on = Operation::kFiles,
     .run = Start,
     .may_change = {kMaster},
     .reports = false},
    {.name = "change a setting",
     .on = Operation::kPanel,
     .run = ChangeSetting,
     .may_change = {Home::SettingsFileOf(kA)}},
    {.name = "add a site",
     .on = Operation::kPanel,
     .run = AddSite,
     .may_change = {kMaster, kSettings + "/#c.example/"},
     .lists_what_is_there = true},
    {.name = "remove a site",
     .on = Operation::kPanel,
     .run = RemoveSite,
     .may_change = {kMaster, kSettings + "/#a.example/", kStorage + kA + "/"},
     .lists_what_is_there = true},
    {.name = "block storage for all sites",
     .on = Operation::kPanel,
     .run = BlockStorageEverywhere,
     .may_change = {kMaster, Home::SettingsFileOf(kA), Home::SettingsFileOf(kB),
                    kStorage + kA + "/", kStorage + kB + "/"},
     .reports = false,
     .certain = 2},
    {.name = "delete all",
     .on = Operation::kPanel,
     .run = DeleteAll,
     .may_change = {kSettings + "/", kStorage, Home::kAssetCache,
                    Home::kLicences},
     .reports = false,
     .certain = 2,
     .keeps_settings = false},
};

// Drops the store's messages while it lives; a sanitizer's still come.
class Silence {
 public:
  Silence() : former_(std::exchange(stderr, std::fopen("/dev/null", "w"))) {}
  ~Silence() { std::fclose(std::exchange(stderr, former_)); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  std::FILE* former_;
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
    EXPECT_THAT(password_home.List(), testing::IsEmpty());
  }
}

std::string Content(const Snapshot& snapshot, const std::string& path) {
  const auto found = snapshot.find(path);
  return found == snapshot.end() ? "nothing" : found->second;
}

// A path that changed but may not; empty when there is none.
std::string ChangedOutside(const Operation& operation, const Snapshot& before,
                           const Snapshot& after) {
  Snapshot either = before;
  either.insert(after.begin(), after.end());
  for (const auto& entry : either) {
    const std::string& path = entry.first;
    const bool may_change = std::ranges::any_of(
        operation.may_change,
        [&](const auto& beginning) { return path.starts_with(beginning); });
    if (!may_change && Content(before, path) != Content(after, path)) {
      return path;
    }
  }
  return {};
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
    return is_allocation && operation.keeps_settings ? 0 : 1;
  }
  if (!operation.keeps_settings) return kMostCalls;
  // A process that can open nothing any more from the very call on that creates
  // the file cannot take the old one back. What the user may not read is
  // replaced.
  return fault.effect == Effect::kFailOnwards || fault.error == EACCES ? 1 : 0;
}

// A home with every kind of file in it.
class Faults : public StoreTest {
 protected:
  // The disk, and what the panel holds, when nothing fails.
  struct State {
    Snapshot disk;
    std::vector<std::string> memory;
  };

  Faults();
  ~Faults() override { SettingBase::mSettingsManager = nullptr; }

  // Restores the files and starts the panel as the operation needs them.
  State Prepare(const Operation& operation);
  // The sites, the limit of all, and those of listed sites.
  std::vector<std::string> Memory();
  // Runs the operation; true when the n-th call met the fault.
  bool Try(const Operation& operation, const Fault& fault, int n,
           const State& complete);
  // What must be in memory after a failed system call.
  void CheckMemory(const Operation& operation, const State& before,
                   const State& complete, bool is_done, const Snapshot& after);
  // Runs every operation with every fault at each of its calls.
  void TryAll(std::span<const Fault> faults);
  // All defaults and the list of sites are there.
  void ExpectWhole();
  // A new panel is whole, a site can be added and changed, and the next start
  // finds it.
  void ExpectUsable(const Snapshot& after);

 private:
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
    home_.Write(Home::StorageOf(site) + "/one.sol", "one");
    home_.Write(Home::StorageOf(site) + "/deep/er/two.sol", "two");
  }
  home_.Write(std::string(Home::kAssetCache) + "/d/asset", "asset");
  home_.Write(std::string(Home::kLicences) + "/licence", "licence");
  whole_ = home_.Take();
}

Faults::State Faults::Prepare(const Operation& operation) {
  manager_.reset();
  home_.Restore(operation.on == Operation::kNothing ? around_ : whole_);
  if (operation.on != Operation::kPanel) return {home_.Take(), {}};
  ::Start(*this);
  return {home_.Take(), Memory()};
}

std::vector<std::string> Faults::Memory() {
  const std::vector<std::string> sites = Listed();
  std::vector<std::string> memory = {testing::PrintToString(sites),
                                     Held("defaultklimit")};
  for (const char* site : {kA, kB}) {
    const bool is_listed = std::ranges::count(sites, site) > 0;
    memory.push_back(is_listed ? Held("klimit", site) : "not listed");
  }
  return memory;
}

bool Faults::Try(const Operation& operation, const Fault& fault, int n,
                 const State& complete) {
  const Silence silence;
  const State before = Prepare(operation);
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
  EXPECT_EQ(ChangedOutside(operation, before.disk, after), "");
  EXPECT_LE(CountTorn(before.disk, after, complete.disk),
            MostTorn(operation, fault));
  const bool is_done = result && operation.reports;
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
  if (operation.on != Operation::kPanel) return;
  const std::vector<std::string> memory = Memory();
  for (std::size_t i = 0; i < memory.size(); ++i) {
    const bool may_be_old = !is_done && i >= operation.certain;
    EXPECT_THAT(memory[i],
                AnyOf(complete.memory[i],
                      may_be_old ? before.memory[i] : complete.memory[i]));
  }
  if (!operation.lists_what_is_there) return;
  for (const std::string& site : Listed()) {
    EXPECT_TRUE(!after.contains(Home::StorageOf(site) + "/one.sol") ||
                after.contains(Home::SettingsFileOf(site)));
  }
}

void Faults::ExpectWhole() {
  for (const auto& row : SASM::DefaultMasterSettings()) {
    EXPECT_NE(Held(row.key), "none") << row.key;
  }
  EXPECT_TRUE(manager_->GetDomains());
}

void Faults::ExpectUsable(const Snapshot& after) {
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

void Faults::TryAll(std::span<const Fault> faults) {
  std::set<std::string> met;
  for (const Operation& operation : kOperations) {
    Prepare(operation);
    EXPECT_TRUE(operation.run(*this));
    const State complete = {home_.Take(), Memory()};
    for (const Fault& fault : faults) {
      int n = 0;
      for (bool is_met = true; is_met && n < kMostCalls; ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << fault.name << " " << n);
        is_met = Try(operation, fault, n, complete);
        if (is_met) met.insert(fault.name);
        if (HasFailure()) return;
      }
      EXPECT_LT(n, kMostCalls);
    }
  }
  EXPECT_EQ(met.size(), faults.size()) << "a call goes another way";
}

TEST_F(Faults, LeaveEverythingElseAloneAndTheNextStartUsable) {
  TryAll(kFaults);
}

TEST_F(Faults, AKillAtAnyMomentCostsTheFileBeingWrittenAtMost) {
  TryAll(kKills);
}

TEST_F(Faults, OutOfMemoryAtAnyMomentTearsNoFile) {
  if (!faults::kAllocationsCanFail) GTEST_SKIP() << "a sanitizer's allocator";
  TryAll(kAllocations);
}

}  // namespace
