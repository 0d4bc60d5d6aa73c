#include "cli/error_messages.h"

#include <cinttypes>
#include <cstdio>

#include "cli/command_line.h"
#include "cli/plain_text.h"

void PrintError(const char* name, const char* what) {
  std::fprintf(stderr, "%s: %s: %s\n", kProgramName, Printable(name).c_str(),
               what);
}

void PrintDamage(const char* file, const char* what, std::uint64_t offset) {
  std::fprintf(stderr, "%s: %s: byte %" PRIu64 ": %s\n", kProgramName,
               Printable(file).c_str(), offset, what);
}
