// Every operation of the store, while each of its system calls and allocations
// fails in turn.
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <span>

#include "settings/out_of_memory.h"
#include "tests/faults/fault_injection.h"
#include "tests/faults/operations.h"

using faults::Effect;
using faults::Fault;

namespace {

constexpr Fault kFaults[] = {
    {"open: too many files", faults::kOpen, Effect::kFail, EMFILE},
    {"every open from here on", faults::kOpen, Effect::kFailOnwards, EMFILE},
    {"open: interrupted", faults::kOpen, Effect::kFail, EINTR},
    {"openat2: missing", faults::kOpenat2, Effect::kFailOnwards, ENOSYS},
    {"read: bad disk", faults::kRead, Effect::kFail, EIO},
    {"read: interrupted", faults::kRead, Effect::kFail, EINTR},
    {"write: bad disk", faults::kWrite, Effect::kFail, EIO},
    {"write: interrupted", faults::kWrite, Effect::kFail, EINTR},
    {"short write", faults::kWrite, Effect::kShortWrite, 0},
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
    {"killed before", faults::kChangesDisk, Effect::kKill, 0},
    {"killed within", faults::kWrite, Effect::kKillHalfway, 0},
};
constexpr Fault kAllocations[] = {
    {"allocation", faults::kAllocate, Effect::kFail, ENOMEM},
    {"every allocation", faults::kAllocate, Effect::kFailOnwards, ENOMEM},
};
bool IsAllocation(const Fault& fault) {
  return fault.calls == faults::kAllocate;
}
bool EndsProcess(const Fault& fault) {
  return IsAllocation(fault) || fault.effect == Effect::kKill ||
         fault.effect == Effect::kKillHalfway;
}
// An operation makes fewer calls than this.
constexpr int kMostCalls = 5000;
// Exit status of a child whose fault was met and did not end it.
constexpr int kMet = 2;

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

long OpenDescriptors() {
  const std::filesystem::directory_iterator descriptors("/proc/self/fd");
  return std::distance(begin(descriptors), end(descriptors));
}

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
  setenv("PASSWORD_DATABASE_HOME", password_home.Path().c_str(), 1);
  const TemporaryHome home;
  int status = kMet;
  for (int n = 0; status != 0 && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    testing::internal::CaptureStderr();
    status = InChild(kAllocations[0], n, [] {
      Panel panel;
      panel.Start();
      (void)panel.manager->RemoveAllSettingsAndOrLocalStorage(true, true);
    });
    const std::string printed = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status == EXIT_FAILURE, printed == "Out of memory.\n") << printed;
    EXPECT_EQ(password_home.List(), std::vector<std::string>());
  }
}

using Snapshot = TemporaryHome::Snapshot;

std::string Content(const Snapshot& snapshot, const std::string& path) {
  const auto found = snapshot.find(path);
  return found == snapshot.end() ? "nothing" : found->second;
}

// A path that changed but may not; empty when there is none.
std::string ChangedOutside(const Operation& operation, const Snapshot& before,
                           const Snapshot& after) {
  for (const Snapshot* side : {&before, &after}) {
    for (const auto& entry : *side) {
      const std::string& path = entry.first;
      const bool may_change = std::ranges::any_of(
          operation.may_change,
          [&](const auto& beginning) { return path.starts_with(beginning); });
      if (!may_change && Content(before, path) != Content(after, path)) {
        return path;
      }
    }
  }
  return {};
}

// The number of settings files that are neither as before nor as complete.
int CountTorn(const Snapshot& before, const Snapshot& now,
              const Snapshot& complete) {
  int torn = 0;
  for (const auto& [path, content] : before) {
    if (!path.ends_with("settings.sol")) continue;
    const std::string held = Content(now, path);
    if (held != content && held != Content(complete, path)) ++torn;
  }
  return torn;
}

// A home with every kind of file in it. Each test needs its own process, since
// a process looks its home up once.
class Faults : public testing::Test {
 protected:
  Faults();

  // Restores the files and starts the panel as the operation needs them.
  void Prepare(const Operation& operation, Panel* panel) const;
  // The files after the operation when nothing fails.
  Snapshot Complete(const Operation& operation) const;
  // Run the operation; true when the n-th call met the fault. The fault of End
  // ends the process, and the operation runs in a child.
  bool Fail(const Operation& operation, const Fault& fault, int n,
            const Snapshot& complete);
  bool End(const Operation& operation, const Fault& fault, int n,
           const Snapshot& complete);
  // Runs every operation with every fault at each of its calls.
  void TryAll(std::span<const Fault> faults);

 private:
  TemporaryHome home_;
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
  Panel panel;
  panel.Start();
  panel.SetNumber("defaultklimit", 10, Panel::Master());
  for (const char* site : {"a.example", "b.example"}) {
    panel.manager->AddDomainWithDefaultSettings(site);
    home_.Write(TemporaryHome::StorageOf(site) + "/one.sol", "one");
    home_.Write(TemporaryHome::StorageOf(site) + "/deep/er/two.sol", "two");
  }
  home_.Write(std::string(TemporaryHome::kAssetCache) + "/d/asset", "asset");
  home_.Write(std::string(TemporaryHome::kLicences) + "/licence", "licence");
  whole_ = home_.Take();
}

void Faults::Prepare(const Operation& operation, Panel* panel) const {
  home_.Restore(operation.on == Operation::On::kNothing ? around_ : whole_);
  if (operation.on == Operation::On::kPanel) panel->Start();
}

Snapshot Faults::Complete(const Operation& operation) const {
  const Silence silence;
  Panel panel;
  Prepare(operation, &panel);
  EXPECT_TRUE(operation.run(panel));
  return home_.Take();
}

bool Faults::Fail(const Operation& operation, const Fault& fault, int n,
                  const Snapshot& complete) {
  const Silence silence;
  Panel panel;
  Prepare(operation, &panel);
  const Snapshot before = home_.Take();
  const long descriptors = OpenDescriptors();
  faults::Arm(fault, n);
  const bool result = operation.run(panel);
  const bool is_met = faults::Disarm();
  EXPECT_EQ(OpenDescriptors(), descriptors);
  const Snapshot after = home_.Take();
  EXPECT_EQ(ChangedOutside(operation, before, after), "");
  // A process that can open nothing any more from the very call on that creates
  // the file cannot take the old one back. What the user may not read is
  // replaced.
  const bool may_cost_one =
      fault.effect == Effect::kFailOnwards || fault.error == EACCES;
  const int most_torn = may_cost_one ? 1 : 0;
  if (operation.keeps_settings) {
    EXPECT_LE(CountTorn(before, after, complete), most_torn);
  }
  const bool is_reported =
      operation.reports && (fault.calls & faults::kChangesDisk);
  const bool is_overcome = fault.effect == Effect::kShortWrite ||
                           fault.error == EINTR || fault.error == ENOSYS;
  if (is_overcome || (is_reported && result)) {
    EXPECT_EQ(after, complete);
  }
  operation.check(panel, {result, after});
  if (known_usable_.insert(after).second) ExpectUsable();
  return is_met;
}

bool Faults::End(const Operation& operation, const Fault& fault, int n,
                 const Snapshot& complete) {
  const Silence silence;
  Panel panel;
  Prepare(operation, &panel);
  const Snapshot before = home_.Take();
  const int status = InChild(fault, n, [&] { operation.run(panel); });
  const Snapshot after = home_.Take();
  if (IsAllocation(fault)) {
    // A failed malloc inside the C library only fails that call.
    EXPECT_THAT(status, testing::AnyOf(0, kMet, EXIT_FAILURE));
  } else {
    EXPECT_THAT(status, testing::AnyOf(0, faults::kKilled));
  }
  const bool loses_none = IsAllocation(fault) && operation.keeps_settings;
  EXPECT_LE(CountTorn(before, after, complete), loses_none ? 0 : 1);
  EXPECT_EQ(ChangedOutside(operation, before, after), "");
  if (known_usable_.insert(after).second) ExpectUsable();
  return status != 0;
}

void Faults::TryAll(std::span<const Fault> faults) {
  std::set<std::string> met;
  for (const Operation& operation : AllOperations()) {
    const Snapshot complete = Complete(operation);
    for (const Fault& fault : faults) {
      int n = 0;
      for (bool is_met = true; is_met && n < kMostCalls; ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << fault.name << " " << n);
        is_met = EndsProcess(fault) ? End(operation, fault, n, complete)
                                    : Fail(operation, fault, n, complete);
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
