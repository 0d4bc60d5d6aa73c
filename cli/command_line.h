// What the user asks for.
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
  // All of them hold of a site that is shown.
  std::vector<PermissionFilter> filters;
  // Sites or files; borrowed from the arguments of the program.
  std::span<char* const> names;
};

// Reorders `arguments`, which begin with the program's name. False when they
// make no sense; standard error then says why.
[[nodiscard]] bool ParseCommandLine(std::span<char*> arguments,
                                    CommandLine* command);

void PrintHelp(std::FILE* output);
void PrintProgramVersion(std::FILE* output);
