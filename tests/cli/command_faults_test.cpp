// The commands that change settings, while each of their system calls fails.
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <iterator>
#include <sstream>

#include "cli/command_line.h"
#include "cli/json.h"
#include "tests/support/call_hooks.h"
#include "tests/support/store_test.h"

namespace {

using faults::Effect;
using faults::Fault;
using Snapshot = TemporaryHome::Snapshot;

constexpr Fault kFaults[] = {
    {"create: read-only", faults::kCreate, Effect::kFail, EROFS},
    {"read: bad disk", faults::kRead, Effect::kFail, EIO},
    {"write: bad disk", faults::kWrite, Effect::kFail, EIO},
    {"every write from here on", faults::kWrite, Effect::kFailOnwards, EIO},
    {"disk full", faults::kWrite, Effect::kDiskFull, ENOSPC},
    {"mkdir: read-only", faults::kMkdir, Effect::kFail, EROFS},
    {"unlink: not permitted", faults::kUnlink, Effect::kFail, EPERM},
    {"rmdir: busy", faults::kRmdir, Effect::kFail, EBUSY},
};
constexpr char kDocument[] =
    R"({"format": "corvane-player-settings 1", "global": [],
        "trusted_locations": ["/t"], "sites": [
          {"site": "a.example", "settings": [{"key": "klimit", "value": -1}]},
          {"site": "c.example", "settings": [{"key": "x", "value": 1}]}]})";
constexpr const char* kCommands[] = {
    "set --all-sites camera=block",
    "set --add storage=block a.example c.example",
    "remove a.example b.example",
    "trust /t",
    "untrust /old",
    "import --replace --delete-data document",
    "doctor --relist",
    "clear storage settings cache licences",
    "clear --keep=a.example storage settings",
};
// Added to the exit status of a command that met the fault.
constexpr int kMet = 64;

class CommandFaults : public StoreTest {
 protected:
  CommandFaults() {
    PrepareJson();
    Begin({"a.example", "b.example"});
    manager_.reset();
    home_.Write(TemporaryHome::SettingsFileOf("unlisted"),
                SiteFile("a.example"));
    home_.Write("document", kDocument);
    home_.Write(std::string(TemporaryHome::kAssetCache) + "/asset", "asset");
    home_.Write(std::string(TemporaryHome::kLicences) + "/licence", "licence");
    EXPECT_EQ(Run("trust /old", {}, 0), kSuccess);
    before_ = home_.Take();
  }

  // The exit status.
  int Run(const char* command, const Fault& fault, int n) const;
  // Whether the n-th call met the fault.
  bool Try(const char* command, const Fault& fault, int n) const;

  Snapshot before_;
  Snapshot complete_;
};

int CommandFaults::Run(const char* command, const Fault& fault, int n) const {
  const pid_t child = fork();
  if (child == 0) {
    std::istringstream words(command);
    using Word = std::istream_iterator<std::string>;
    std::vector<std::string> texts(Word(words), {});
    texts.insert(texts.begin(), kProgramName);
    std::vector<char*> arguments;
    arguments.reserve(texts.size());
    for (std::string& text : texts) arguments.push_back(text.data());
    stdout = stderr = std::fopen("/dev/null", "w");
    CommandLine line;
    if (chdir(home_.Path().c_str()) != 0 ||
        !ParseCommandLine(arguments, &line)) {
      _exit(kUsageError);
    }
    faults::Arm(fault, n);
    const ExitStatus status = line.command->run(line);
    _exit(faults::Disarm() ? status + kMet : status);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status)) << "signal " << WTERMSIG(status);
  return WEXITSTATUS(status);
}

bool CommandFaults::Try(const char* command, const Fault& fault, int n) const {
  home_.Restore(before_);
  const int status = Run(command, fault, n);
  const Snapshot after = home_.Take();
  for (const auto& entry : before_) {
    const std::string& path = entry.first;
    if (!path.ends_with("settings.sol")) continue;
    // Where nothing more can be written, the old bytes cannot come back.
    if (fault.effect == Effect::kFailOnwards) continue;
    EXPECT_TRUE(after.contains(path) ? image::Read(after.at(path)) != nullptr
                                     : !complete_.contains(path))
        << path;
  }
  if (status % kMet == kSuccess) {
    EXPECT_EQ(Run(command, {}, 0), kSuccess);
    EXPECT_TRUE(home_.Take() == after) << "it was not all done";
  } else {
    EXPECT_EQ(status, kMet + kFailure);
  }
  return status >= kMet;
}

TEST_F(CommandFaults, TearNoSettingsAndAreReported) {
  for (const char* command : kCommands) {
    home_.Restore(before_);
    EXPECT_EQ(Run(command, {}, 0), kSuccess);
    complete_ = home_.Take();
    EXPECT_NE(complete_, before_) << command;
    for (const Fault& fault : kFaults) {
      for (int n = 0; !HasFailure(); ++n) {
        SCOPED_TRACE(std::string(command) + ", " + fault.name + " " +
                     std::to_string(n));
        if (!Try(command, fault, n)) break;
      }
    }
  }
}

}  // namespace
