// Every operation of the store and every command that changes settings, while
// each of its system calls and allocations fails in turn.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <set>

#include "model/setting_base.h"
#include "settings/out_of_memory.h"
#include "store/default_settings.h"
#include "tests/faults/operations.h"
#include "tests/support/call_hooks.h"
#include "tests/support/privileges.h"

namespace faults {

static void PrintTo(const Fault& fault, std::ostream* stream) {
  *stream << fault.name;
}

}  // namespace faults

namespace {

namespace fs = std::filesystem;

using faults::Effect;
using faults::Fault;
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
    {"every write from here on", faults::kWrite, Effect::kFailOnwards, EIO},
    {"disk full", faults::kWrite, Effect::kDiskFull, ENOSPC},
    {"close: bad disk", faults::kClose, Effect::kFail, EIO},
    {"create: read-only", faults::kCreate, Effect::kFail, EROFS},
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
// The calls whose failure an operation reports.
constexpr unsigned int kReported = faults::kChangesDisk | faults::kRead;
// What became of an operation that its fault did not end: bits.
enum Outcome { kMet = 2, kFailed = 4 };

constexpr char kDocument[] = R"({"format": "corvane-player-settings 1",
    "global": [], "trusted_locations": ["/t"], "sites": [
      {"site": "a.example", "settings": [{"key": "klimit", "value": -1}]},
      {"site": "c.example", "settings": [{"key": "x", "value": 1}]}]})";

bool EndsProcess(const Fault& fault) {
  return fault.calls == faults::kAllocate || fault.effect == Effect::kKill ||
         fault.effect == Effect::kKillHalfway;
}

// Runs `body`, which returns whether it succeeds, with the n-th call meeting
// the fault.
template <typename Body>
int RunArmed(const Fault& fault, int n, Body body) {
  faults::Arm(fault, n);
  const int failed = body() ? 0 : kFailed;
  return faults::Disarm() ? kMet | failed : failed;
}

// The same in a child, under the programs' own handler. Its exit status.
template <typename Body>
int InChild(const Fault& fault, int n, Body body) {
  const pid_t child = fork();
  if (child == 0) {
    ExitWhenOutOfMemory();
    _exit(RunArmed(fault, n, body));
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
      return manager.RemoveAllSettingsAndOrLocalStorage(true, true);
    });
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status == EXIT_FAILURE, printed == "Out of memory.\n") << printed;
    EXPECT_THAT(password_home.List(), testing::IsEmpty());
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

// The settings files that a fault may cost: 0 or 1, or any number.
int MostTorn(const Operation& operation, const Fault& fault) {
  if (EndsProcess(fault)) {
    const bool is_allocation = fault.calls == faults::kAllocate;
    return is_allocation && !(operation.rules & kRemovesSettings) ? 0 : 1;
  }
  if (operation.rules & kRemovesSettings) return INT_MAX;
  if (fault.effect == Effect::kFailOnwards) {
    // Where nothing more can be written, the old bytes cannot come back. A
    // process that can open nothing any more from the very call on that creates
    // the file cannot take the old one back.
    return fault.calls == faults::kWrite ? INT_MAX : 1;
  }
  return fault.error == EACCES ? 1 : 0;  // what may not be read is replaced
}

// One operation at a time, on a home with every kind of file in it.
class Faults : public StoreTest {
 protected:
  struct State {
    Snapshot disk;
    std::vector<std::string> memory;
  };

  Faults();
  ~Faults() override {
    SettingBase::mSettingsManager = nullptr;
    std::fclose(std::exchange(stderr, errors_));
  }

  // Restores the files and starts the panel as the operation needs them; its
  // sites are then in memory.
  void Prepare(const Operation& operation) {
    operation_ = &operation;
    manager_.reset();
    home_.Restore(operation.home == kNothing ? around_ : whole_);
    if (operation.home == kPanel && StartPanel(*this)) (void)InMemory();
    // The doctor would report it, and fail.
    if (operation.home == kCommand) fs::remove_all(home_ / Storage(kNew));
  }
  // Runs the operation without a fault, to know what it changes.
  void Learn(const Operation& operation) {
    Prepare(operation);
    before_ = Look();
    EXPECT_EQ(Run({}, 0), 0);
    complete_ = Look();
  }
  // The sites, the limit of all, and those of listed sites.
  std::vector<std::string> InMemory() {
    const std::vector<std::string> sites = Listed();
    std::vector<std::string> memory = {testing::PrintToString(sites),
                                       Held("defaultklimit")};
    for (const char* site : {kA, kB}) {
      const bool is_listed = std::ranges::count(sites, site) > 0;
      memory.push_back(is_listed ? Held("klimit", site) : "not listed");
    }
    return memory;
  }
  // The disk, and what the panel holds when there is one.
  State Look() {
    return {home_.Take(), manager_ ? InMemory() : std::vector<std::string>()};
  }
  // Runs the operation, with the n-th call meeting the fault. The outcome, or
  // the exit status of the process that was ended.
  int Run(const Fault& fault, int n) {
    const auto run = [&] { return operation_->run(*this); };
    if (EndsProcess(fault) || operation_->home == kCommand) {
      return InChild(fault, n, run);
    }
    const auto descriptors = CountDescriptors();
    const int outcome = RunArmed(fault, n, run);
    EXPECT_EQ(CountDescriptors(), descriptors);
    return outcome;
  }
  // Runs the operation and judges what it leaves. True when the fault was met.
  bool Try(const Fault& fault, int n);
  // Settings files that are neither as before nor as complete, nor could have
  // been written in between.
  int CountTorn(const Snapshot& now);
  // What must be in memory after a failed system call.
  void CheckMemory(bool is_done, const Snapshot& after);
  // Runs the operation; at its n-th call the directory is exchanged for a link,
  // or for the time of one call, without openat2. False when it is not. A hard
  // link takes the place of a settings file as soon as it is removed.
  bool TryExchange(const std::string& place, int n, bool is_back);
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
  const std::vector<Operation> operations_ = Operations();
  // The one that is tried, what it finds and what it leaves without a fault.
  const Operation* operation_ = nullptr;
  State before_;
  State complete_;
  // Many faults leave the same files.
  std::set<Snapshot> known_usable_;
};

Faults::Faults() {
  for (const char* name :
       {".profile", "settings.sol", ".orbelline/other/data",
        ".orbelline/Corvane_Player/notes", ".tessary/Corvane_Player/notes"}) {
    home_.Write(name, "another program's");
  }
  home_.Write("document", kDocument);
  fs::current_path(home_.Path());
  around_ = home_.Take();
  home_.AddSites({kA, kB}, {"/old"});
  for (const char* site : {kA, kB, kNew}) {
    home_.Write(Storage(site) + "/one.sol", "one");
    home_.Write(Storage(site) + "/deep/er/two.sol", "two");
  }
  home_.Write(std::string(TemporaryHome::kAssetCache) + "/d/asset", "asset");
  home_.Write(std::string(TemporaryHome::kLicences) + "/licence", "licence");
  home_.Write(TemporaryHome::SettingsFileOf("unlisted"), SiteFile(kA));
  Start();
  SetNumber("defaultklimit", 10, "___MASTER_DOMAIN");
  whole_ = home_.Take();
}

bool Faults::Try(const Fault& fault, int n) {
  const int status = Run(fault, n);
  const bool result = status == 0 || status == kMet;
  // A failed malloc inside the C library only fails that call.
  const int end =
      fault.calls == faults::kAllocate ? EXIT_FAILURE : faults::kKilled;
  EXPECT_TRUE(status == 0 || status & kMet ||
              (EndsProcess(fault) && status == end))
      << status;
  const Snapshot after = home_.Take();
  ExpectChangesIn(operation_->may_change, before_.disk, after);
  EXPECT_LE(CountTorn(after), MostTorn(*operation_, fault));
  const bool is_done = result && (operation_->rules & kReports);
  const bool is_overcome = fault.effect == Effect::kShort ||
                           fault.error == EINTR || fault.error == ENOSYS;
  EXPECT_TRUE(result || !is_overcome);
  if (is_overcome || (is_done && (fault.calls & kReported))) {
    EXPECT_EQ(after, complete_.disk);
  }
  if (manager_ && !EndsProcess(fault)) CheckMemory(is_done, after);
  ExpectUsable(after);
  return status != 0;
}

int Faults::CountTorn(const Snapshot& now) {
  const auto held = [](const Snapshot& snapshot, const std::string& path) {
    return snapshot.contains(path) ? snapshot.at(path) : "nothing";
  };
  return static_cast<int>(
      std::ranges::count_if(before_.disk, [&](const auto& file) {
        const auto& [path, content] = file;
        const std::string bytes = held(now, path);
        return path.ends_with("settings.sol") && bytes != content &&
               bytes != held(complete_.disk, path) &&
               !(operation_->rules & kInSteps && image::Read(bytes));
      }));
}

void Faults::CheckMemory(bool is_done, const Snapshot& after) {
  ExpectWhole();
  if (operation_->home != kPanel) return;
  const std::vector<std::string> memory = InMemory();
  for (std::size_t i = 0; i < memory.size(); ++i) {
    const bool is_new =
        is_done || (i < 2 && operation_->rules & kForgetsAtOnce);
    EXPECT_THAT(memory[i], testing::AnyOf(complete_.memory[i],
                                          is_new ? complete_.memory[i]
                                                 : before_.memory[i]));
  }
  if (!(operation_->rules & kListsWhatIsThere)) return;
  for (const std::string& site : Listed()) {
    EXPECT_TRUE(!after.contains(Storage(site) + "/one.sol") ||
                after.contains(TemporaryHome::SettingsFileOf(site)));
  }
}

bool Faults::TryExchange(const std::string& place, int n, bool is_back) {
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
  (void)Run(is_back ? kNoOpenat2 : Fault(), 0);
  before_call = nullptr;
  EXPECT_EQ(home_.Read(".profile"), "another program's");
  return exchanges > 0;
}

TEST_F(Faults, ADirectoryExchangedForALinkLeadsNowhere) {
  const TemporaryHome elsewhere;
  // Directories on the way to what operations change.
  for (const std::string& place :
       {std::string(TemporaryHome::kSettings),
        TemporaryHome::kSettings + std::string("/#a.example"),
        std::string(TemporaryHome::kSharedObjects),
        TemporaryHome::kSharedObjects + std::string("/QK5SFBDP"),
        Storage(kA) + "/deep"}) {
    home_.Restore(whole_);
    elsewhere.Restore({});
    fs::copy(home_ / place, elsewhere.Path(), fs::copy_options::recursive);
    const Snapshot precious = elsewhere.Take();
    for (const Operation& operation : operations_) {
      for (const bool is_back : {false, true}) {
        // The exchanges of a child are not counted here.
        bool is_exchanged = operation.home != kCommand;
        for (int n = 0; is_exchanged && !HasFailure(); ++n) {
          SCOPED_TRACE(testing::Message() << operation.name << ", " << place
                                          << " " << n << ", " << is_back);
          Prepare(operation);
          fs::create_directory_symlink(elsewhere.Path(), home_ / "link");
          is_exchanged = TryExchange(place, n, is_back);
          EXPECT_EQ(elsewhere.Take(), precious);
        }
      }
    }
  }
}

// One fault, at each of its calls in every operation.
class EachFault : public Faults, public testing::WithParamInterface<Fault> {};

TEST_P(EachFault, LeavesEverythingElseAloneAndTheNextStartUsable) {
  const Fault& fault = GetParam();
  bool is_ever_met = false;
  for (const Operation& operation : operations_) {
    if (operation.home == kCommand && !(fault.calls & kReported)) continue;
    Learn(operation);
    bool is_met = true;
    for (int n = 0; is_met && !HasFailure(); ++n) {
      SCOPED_TRACE(testing::Message() << operation.name << " " << n);
      Prepare(operation);
      is_met = Try(fault, n);
      is_ever_met = is_ever_met || is_met;
    }
  }
  EXPECT_TRUE(is_ever_met) << "a call goes another way";
}

INSTANTIATE_TEST_SUITE_P(SystemCalls, EachFault, testing::ValuesIn(kFaults));
// A sanitizer brings its own allocator.
#if !SANITIZED
INSTANTIATE_TEST_SUITE_P(OutOfMemory, EachFault,
                         testing::ValuesIn(kAllocations));
#endif

}  // namespace
