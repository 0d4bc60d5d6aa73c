// Programs as a user runs them.
#pragma once

#include <string>

struct ProgramRun {
  int status;
  std::string output;
  std::string errors;
};

// Runs a shell command to its end. A command ended by a signal has the status
// -1.
ProgramRun RunCommand(const std::string& command);

// One word of a shell command, whatever is in it.
std::string Quoted(const std::string& word);
