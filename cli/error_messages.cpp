#include "cli/error_messages.h"

#include <cstdio>

#include "cli/command_line.h"
#include "strings/printable_text.h"

void PrintError(std::string_view name, std::string_view message) {
  std::fprintf(stderr, "%s: %s: %.*s\n", kProgramName, Printable(name).c_str(),
               static_cast<int>(message.size()), message.data());
}

void PrintProblem(const char* file, const FileProblem& problem) {
  PrintError(file, problem.Message());
}
