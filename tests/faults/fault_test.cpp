// Every operation of the store, with each of its system calls and allocations
// failing in turn.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <set>

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

bool MayChange(const Operation& operation, const std::string& path) {
  for (const std::string& beginning : operation.may_change) {
    if (path.starts_with(beginning) || path + "/" == beginning) return true;
  }
  return false;
}

// What of `before` has gone or changed, and what is new in `after`, outside of
// the places of the operation.
std::string ChangedOutside(const Operation& operation, const Snapshot& before,
                           const Snapshot& after) {
  for (const auto& [path, content] : before) {
    const auto found = after.find(path);
    const bool is_same = found != after.end() && found->second == content;
    if (!is_same && !MayChange(operation, path)) return path;
  }
  for (const auto& [path, content] : after) {
    if (!before.contains(path) && !MayChange(operation, path)) return path;
  }
  return {};
}

// The settings files that are neither as before nor as without a fault.
int CountTorn(const Snapshot& before, const Snapshot& now,
              const Snapshot& after) {
  int torn = 0;
  for (const auto& [path, content] : before) {
    if (!path.ends_with("settings.sol")) continue;
    const auto is_as_in = [&](const Snapshot& other) {
      const auto a = now.find(path);
      const auto b = other.find(path);
      if (a == now.end() || b == other.end()) {
        return a == now.end() && b == other.end();
      }
      return a->second == b->second;
    };
    torn += is_as_in(before) || is_as_in(after) ? 0 : 1;
  }
  return torn;
}

class Faults : public testing::Test {
 protected:
  // Runs the operation on fresh files; true when the n-th call was met.
  bool Run(const Operation& operation, const Fault& fault, int n,
           const Snapshot& complete);
  // As it ends when nothing fails.
  Snapshot Complete(const Operation& operation);

  // A panel started on the files as they are now can be used.
  void ExpectUsable();

  // One for all tests: where it is, is found out once per process.
  static const PanelHome& Home();

  // Many faults leave the same files.
  std::set<Snapshot> known_usable_;
};

const PanelHome& Faults::Home() {
  static const PanelHome home;
  return home;
}

Snapshot Faults::Complete(const Operation& operation) {
  Home().Reset(operation.has_panel_files);
  const Silence silence;
  Panel panel;
  if (!operation.starts_panel) panel.Start();
  EXPECT_TRUE(operation.run(&panel));
  return Home().Take();
}

bool Faults::Run(const Operation& operation, const Fault& fault, int n,
                 const Snapshot& complete) {
  Home().Reset(operation.has_panel_files);
  std::string complaint;
  bool is_met = false;
  const long allocations = faults::LiveAllocations();
  {
    const Silence silence;
    Panel panel;
    if (!operation.starts_panel) panel.Start();
    const Snapshot before = Home().Take();
    const long descriptors = OpenDescriptors();
    faults::Arm(fault, n);
    const bool result = operation.run(&panel);
    is_met = faults::Disarm();
    EXPECT_EQ(OpenDescriptors(), descriptors);
    const Snapshot after = Home().Take();
    EXPECT_EQ(ChangedOutside(operation, before, after), "");
    const bool memory_failed = fault.calls == faults::kAllocate;
    // For want of memory nothing is written that is not what was meant.
    if (memory_failed && operation.keeps_settings) {
      EXPECT_EQ(CountTorn(before, after, complete), 0);
    }
    complaint = operation.check(panel, {result, memory_failed, before, after});
  }
  EXPECT_EQ(complaint, "");
  EXPECT_EQ(faults::LiveAllocations(), allocations);
  ExpectUsable();
  return is_met;
}

void Faults::ExpectUsable() {
  if (!known_usable_.insert(Home().Take()).second) return;
  const Silence silence;
  EXPECT_EQ(WhyUnusable(), "");
}

TEST_F(Faults, LeaveEverythingElseAloneAndTheNextStartUsable) {
  for (const Operation& operation : AllOperations()) {
    // What is set up once per process is so from here on.
    const Snapshot complete = Complete(operation);
    for (const Fault& fault : kFaults) {
      int n = 0;
      for (bool is_met = true; is_met && n < kMostCalls; ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << fault.name << " " << n);
        is_met = Run(operation, fault, n, complete);
        if (HasFailure()) return;
      }
      EXPECT_LT(n, kMostCalls);
    }
  }
}

TEST_F(Faults, AKillAtAnyMomentCostsTheFileBeingWrittenAtMost) {
  constexpr Fault kKills[] = {
      {"killed before", faults::kChangesDisk, Effect::kKill, 0},
      {"killed within", faults::kWrite, Effect::kKillHalfway, 0},
  };
  for (const Operation& operation : AllOperations()) {
    const Snapshot complete = Complete(operation);
    for (const Fault& kill : kKills) {
      int status = faults::kKilled;
      for (int n = 0; status == faults::kKilled && n < kMostCalls; ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << kill.name << " " << n);
        Home().Reset(operation.has_panel_files);
        const Silence silence;
        Panel panel;
        if (!operation.starts_panel) panel.Start();
        const Snapshot before = Home().Take();
        status = InChild([&] {
          faults::Arm(kill, n);
          operation.run(&panel);
          faults::Disarm();
        });
        const Snapshot after = Home().Take();
        if (!operation.starts_panel) {
          EXPECT_LE(CountTorn(before, after, complete), 1);
        }
        EXPECT_EQ(ChangedOutside(operation, before, after), "");
        ExpectUsable();
        if (HasFailure()) return;
      }
      EXPECT_EQ(status, 0);
    }
  }
}

}  // namespace
