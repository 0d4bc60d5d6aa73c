// Every operation of the store, with each of its system calls and allocations
// failing in turn.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <set>
#include <span>

#include "tests/faults/fault_injection.h"
#include "tests/faults/operations.h"

using faults::Effect;
using faults::Fault;

namespace {

constexpr Fault kFaults[] = {
    {"open: too many files", faults::kOpen, Effect::kFail, EMFILE},
    {"every open from here on", faults::kOpen, Effect::kFailOnwards, EMFILE},
    {"read: bad disk", faults::kRead, Effect::kFail, EIO},
    {"write: bad disk", faults::kWrite, Effect::kFail, EIO},
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
    {"allocation", faults::kAllocate, Effect::kFail, ENOMEM},
    {"every allocation", faults::kAllocate, Effect::kFailOnwards, ENOMEM},
};
bool Kills(const Fault& fault) {
  return fault.effect == Effect::kKill || fault.effect == Effect::kKillHalfway;
}
constexpr int kMostCalls = 5000;
// Exit status of a child whose fault was met.
constexpr int kMet = 2;

// The store's messages go nowhere while it lives; a sanitizer's still come.
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

// Runs `body` in a child; the child's exit status.
template <typename Body>
int InChild(Body body) {
  const pid_t child = fork();
  if (child == 0) {
    body();
    _exit(testing::Test::HasFailure() ? 1 : 0);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
  return WEXITSTATUS(status);
}

// What is set up once per process finds no memory, in a child each time. This
// test comes first: the parent must not have it set up.
TEST(FaultsOfAFirstStart, NeverLeadToTheHomeOfSomebodyElse) {
  constexpr Fault kFault = {"allocation", faults::kAllocate, Effect::kFail,
                            ENOMEM};
  const TemporaryHome password_home;
  setenv("PASSWORD_DATABASE_HOME", password_home.Path().c_str(), 1);
  const TemporaryHome home;
  int status = kMet;
  for (int n = 0; status == kMet && !HasFailure(); ++n) {
    SCOPED_TRACE(n);
    status = InChild([&] {
      const Silence silence;
      faults::Arm(kFault, n);
      Panel panel;
      panel.Start();
      (void)panel.manager->RemoveAllSettingsAndOrLocalStorage(true, true);
      if (faults::Disarm()) _exit(kMet);
    });
    EXPECT_EQ(password_home.List(), std::vector<std::string>());
  }
  EXPECT_EQ(status, 0);
}

using Snapshot = TemporaryHome::Snapshot;

std::string Content(const Snapshot& snapshot, const std::string& path) {
  const auto found = snapshot.find(path);
  return found == snapshot.end() ? "nothing" : found->second;
}

// What is not as before, outside of the places of the operation.
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

// The settings files that are neither as before nor as without a fault.
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

// A home with something of everything in it. Needs a process for each test:
// the panel finds the home once.
class Faults : public testing::Test {
 protected:
  Faults();

  // Fresh files, and the panel on them that the operation wants.
  void Prepare(const Operation& operation, Panel* panel) const;
  // How the operation ends when nothing fails. What is set up once per process
  // is so from here on.
  Snapshot Complete(const Operation& operation) const;
  // Run the operation; true when the fault met the n-th call. A kill happens in
  // a child.
  bool Fail(const Operation& operation, const Fault& fault, int n,
            const Snapshot& complete);
  bool Kill(const Operation& operation, const Fault& kill, int n,
            const Snapshot& complete);
  // Every operation with every fault at each of its calls in turn.
  void TryAll(std::span<const Fault> faults);

 private:
  TemporaryHome home_;
  // What is nobody's business; and with all that the panel keeps.
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
  const long allocations = faults::LiveAllocations();
  bool is_met = false;
  {
    Panel panel;
    Prepare(operation, &panel);
    const Snapshot before = home_.Take();
    const long descriptors = OpenDescriptors();
    faults::Arm(fault, n);
    const bool result = operation.run(panel);
    is_met = faults::Disarm();
    EXPECT_EQ(OpenDescriptors(), descriptors);
    const Snapshot after = home_.Take();
    EXPECT_EQ(ChangedOutside(operation, before, after), "");
    const bool memory_failed = fault.calls == faults::kAllocate;
    // For want of memory nothing is written that is not what was meant.
    if (memory_failed && operation.keeps_settings) {
      EXPECT_EQ(CountTorn(before, after, complete), 0);
    }
    const bool is_told =
        operation.tells && (fault.calls & faults::kChangesDisk);
    if (fault.effect == Effect::kShortWrite || (is_told && result)) {
      EXPECT_EQ(after, complete);
    }
    operation.check(panel, {result, memory_failed, after});
  }
  EXPECT_EQ(faults::LiveAllocations(), allocations);
  if (known_usable_.insert(home_.Take()).second) ExpectUsable();
  return is_met;
}

bool Faults::Kill(const Operation& operation, const Fault& kill, int n,
                  const Snapshot& complete) {
  const Silence silence;
  Panel panel;
  Prepare(operation, &panel);
  const Snapshot before = home_.Take();
  const int status = InChild([&] {
    faults::Arm(kill, n);
    operation.run(panel);
    faults::Disarm();
  });
  const Snapshot after = home_.Take();
  if (operation.on == Operation::On::kPanel) {
    EXPECT_LE(CountTorn(before, after, complete), 1);
  }
  EXPECT_EQ(ChangedOutside(operation, before, after), "");
  if (known_usable_.insert(after).second) ExpectUsable();
  EXPECT_TRUE(status == 0 || status == faults::kKilled) << status;
  return status == faults::kKilled;
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
        is_met = Kills(fault) ? Kill(operation, fault, n, complete)
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
  constexpr Fault kKills[] = {
      {"killed before", faults::kChangesDisk, Effect::kKill, 0},
      {"killed within", faults::kWrite, Effect::kKillHalfway, 0},
  };
  TryAll(kKills);
}

}  // namespace
