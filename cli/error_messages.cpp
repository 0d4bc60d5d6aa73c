#include "cli/error_messages.h"

#include <cinttypes>
#include <cstdio>

#include "cli/command_line.h"
#include "strings/printable_text.h"

void PrintError(const char* name, const char* message) {
  std::fprintf(stderr, "%s: %s: %s\n", kProgramName, Printable(name).c_str(),
               message);
}

void PrintDamage(const char* file, const char* message, std::uint64_t offset) {
  std::fprintf(stderr, "%s: %s: byte %" PRIu64 ": %s\n", kProgramName,
               Printable(file).c_str(), offset, message);
}
