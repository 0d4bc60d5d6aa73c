// The command line of the program.
#pragma once

#include <cstdio>
#include <span>
#include <vector>

#include "model/permissions.h"

inline constexpr char kProgramName[] = "corvane-player-settings";

// A condition on the sites to show.
struct PermissionFilter {
  PermissionKind permission;
  PermissionState state;
};

struct CommandLine {
  enum class Action { kShow, kInspect, kVersion, kProgramVersion, kHelp };

  Action action = Action::kHelp;
  bool json = false;
  // A site is shown only if it meets all of them.
  std::vector<PermissionFilter> filters;
  // Sites or files, borrowed from the program's arguments.
  std::span<char* const> names;
};

// `arguments` begin with the program's name; they are reordered. When they are
// wrong, prints why and returns false.
[[nodiscard]] bool ParseCommandLine(std::span<char*> arguments,
                                    CommandLine* command);

void PrintHelp(std::FILE* output);
void PrintProgramVersion(std::FILE* output);
