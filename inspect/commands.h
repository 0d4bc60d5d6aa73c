// The commands, which print on standard output.
#pragma once

#include "inspect/command_line.h"

// Each is false when something was damaged, unreadable or unknown, which
// standard error then names.
[[nodiscard]] bool RunShow(const CommandLine& command);
[[nodiscard]] bool RunInspect(const CommandLine& command);
