// Shows settings and versions without changing anything.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "platform/process_setup.h"

namespace {

enum ExitStatus { kSuccess = 0, kFailure = 1, kUsageError = 2 };

bool Run(const CommandLine& command) {
  switch (command.action) {
    case CommandLine::Action::kShow:
      return RunShow(command);
    case CommandLine::Action::kInspect:
      return RunInspect(command);
    case CommandLine::Action::kVersion:
      RunVersion();
      return true;
    case CommandLine::Action::kProgramVersion:
      PrintProgramVersion(stdout);
      return true;
    case CommandLine::Action::kHelp:
      PrintHelp(stdout);
      return true;
  }
  return false;
}

// Writes what is still buffered. Prints a message on failure.
bool CloseOutput() {
  errno = 0;
  if (std::ferror(stdout) == 0 && std::fclose(stdout) == 0) return true;
  PrintError("standard output", errno ? std::strerror(errno) : "not written");
  return false;
}

}  // namespace

int main(int argc, char* argv[]) {
  PrepareProcess();
  CommandLine command;
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  if (!ParseCommandLine(arguments, &command)) return kUsageError;
  const bool succeeded = Run(command);
  return CloseOutput() && succeeded ? kSuccess : kFailure;
}
