// The commands, which print on standard output.
#pragma once

#include "cli/command_line.h"

// Both are false when something was damaged, unreadable or unknown, which
// standard error then names.
[[nodiscard]] bool RunShow(const CommandLine& command);
[[nodiscard]] bool RunInspect(const CommandLine& command);

// Loads the plug-in, see plugin/plugin_version.h.
void RunVersion();
