// Every operation of the store, with each of its system calls and allocations
// failing in turn.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

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

  PanelHome home_;
};

Snapshot Faults::Complete(const Operation& operation) {
  home_.Reset(operation.has_panel_files);
  const Silence silence;
  Panel panel;
  if (!operation.starts_panel) panel.Start();
  EXPECT_TRUE(operation.run(&panel));
  return home_.Take();
}

bool Faults::Run(const Operation& operation, const Fault& fault, int n,
                 const Snapshot& complete) {
  home_.Reset(operation.has_panel_files);
  std::string complaint;
  bool is_met = false;
  {
    const Silence silence;
    auto panel = std::make_unique<Panel>();
    if (!operation.starts_panel) panel->Start();
    const Snapshot before = home_.Take();
    const long descriptors = OpenDescriptors();
    faults::Arm(fault, n);
    const bool result = operation.run(panel.get());
    is_met = faults::Disarm();
    EXPECT_EQ(OpenDescriptors(), descriptors);
    const Snapshot after = home_.Take();
    EXPECT_EQ(ChangedOutside(operation, before, after), "");
    const bool memory_failed = fault.calls == faults::kAllocate;
    // For want of memory nothing is written that is not what was meant.
    if (memory_failed && operation.keeps_settings) {
      EXPECT_EQ(CountTorn(before, after, complete), 0);
    }
    complaint = operation.check(*panel, {result, memory_failed, before, after});
  }
  EXPECT_EQ(complaint, "");
  const Silence silence;
  EXPECT_EQ(WhyUnusable(), "");
  return is_met;
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

TEST_F(Faults, LeakNothing) {
  // In a loop of its own: what the checks above allocate hides nothing.
  for (const Operation& operation : AllOperations()) {
    Complete(operation);
    for (const Fault& fault : kFaults) {
      bool is_met = true;
      for (int n = 0; is_met && !HasFailure(); ++n) {
        SCOPED_TRACE(testing::Message()
                     << operation.name << ", " << fault.name << " " << n);
        home_.Reset(operation.has_panel_files);
        const Silence silence;
        const long allocations = faults::LiveAllocations();
        {
          Panel panel;
          if (!operation.starts_panel) panel.Start();
          faults::Arm(fault, n);
          operation.run(&panel);
          is_met = faults::Disarm();
        }
        EXPECT_EQ(faults::LiveAllocations(), allocations);
      }
    }
  }
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
        home_.Reset(operation.has_panel_files);
        const Snapshot before = home_.Take();
        status = InChild([&] {
          Panel panel;
          if (!operation.starts_panel) panel.Start();
          faults::Arm(kill, n);
          operation.run(&panel);
          faults::Disarm();
        });
        const Snapshot after = home_.Take();
        if (!operation.starts_panel) {
          EXPECT_LE(CountTorn(before, after, complete), 1);
        }
        EXPECT_EQ(ChangedOutside(operation, before, after), "");
        const Silence silence;
        EXPECT_EQ(WhyUnusable(), "");
        if (HasFailure()) return;
      }
      EXPECT_EQ(status, 0);
    }
  }
}

// What is set up once per process fails in a process of its own each time.
TEST(FaultsOfAFirstStart, NeverLeadToTheHomeOfSomebodyElse) {
  const TemporaryHome password_home;
  setenv("PASSWORD_DATABASE_HOME", password_home.Path().c_str(), 1);
  const TemporaryHome home;
  for (const Fault& fault : kFaults) {
    int status = kMet;
    for (int n = 0; status == kMet; ++n) {
      SCOPED_TRACE(testing::Message() << fault.name << " " << n);
      status = InChild([&] {
        const Silence silence;
        faults::Arm(fault, n);
        Panel panel;
        panel.Start();
        (void)panel.manager->RemoveAllSettingsAndOrLocalStorage(true, true);
        if (faults::Disarm()) _exit(kMet);
      });
      EXPECT_EQ(password_home.List(), std::vector<std::string>());
      if (HasFailure()) return;
    }
    EXPECT_EQ(status, 0);
  }
}

}  // namespace
