#include "platform/process_setup.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

#include "settings/out_of_memory.h"

namespace {

void OpenStandardStreams() {
  for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
    if (fcntl(stream, F_GETFD) >= 0) continue;
    // The lowest free descriptor is this one, and stays open.
    const int opened = open("/dev/null", O_RDONLY);
    if (opened != stream) std::_Exit(EXIT_FAILURE);
  }
}

}  // namespace

void PrepareProcess() {
  OpenStandardStreams();
  ExitWhenOutOfMemory();
  std::signal(SIGXFSZ, SIG_IGN);
}
