// Shows and changes settings on the command line.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/command_line.h"
#include "cli/error_messages.h"
#include "cli/json.h"
#include "platform/process_setup.h"

namespace {

ExitStatus Run(const CommandLine& line) {
  if (line.command) return line.command->run(line);
  if (line.Has(kHelp)) {
    PrintHelp(stdout);
  } else {
    PrintProgramVersion(stdout);
  }
  return kSuccess;
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
  PrepareJson();
  CommandLine line;
  const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
  if (!ParseCommandLine(arguments, &line)) return kUsageError;
  const ExitStatus status = Run(line);
  return CloseOutput() || status != kSuccess ? status : kFailure;
}
