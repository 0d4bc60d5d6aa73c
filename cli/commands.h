// The commands, which print on standard output.
#pragma once

#include "cli/command_line.h"

// False when something is damaged, unreadable or unknown. Each such thing is
// named on standard error; the rest is printed.
[[nodiscard]] bool RunShow(const CommandLine& command);
[[nodiscard]] bool RunInspect(const CommandLine& command);

// Loads the plug-in: see plugin/plugin_version.h.
void RunVersion();
