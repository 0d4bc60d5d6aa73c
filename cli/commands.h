// The commands, which print on standard output. What is damaged, unreadable or
// unknown, and what cannot be done, is named on standard error; the rest is
// printed and done.
#pragma once

#include "cli/command_line.h"

// These change settings unless --dry-run is given: see cli/changes.h.
[[nodiscard]] ExitStatus RunSet(const CommandLine& line);
[[nodiscard]] ExitStatus RunRemove(const CommandLine& line);
[[nodiscard]] ExitStatus RunImport(const CommandLine& line);
[[nodiscard]] ExitStatus RunClear(const CommandLine& line);
[[nodiscard]] ExitStatus RunTrust(const CommandLine& line);
[[nodiscard]] ExitStatus RunUntrust(const CommandLine& line);

// These open nothing for writing.
[[nodiscard]] ExitStatus RunShow(const CommandLine& line);
[[nodiscard]] ExitStatus RunInspect(const CommandLine& line);
// With --relist it changes settings.
[[nodiscard]] ExitStatus RunDoctor(const CommandLine& line);
[[nodiscard]] ExitStatus RunExport(const CommandLine& line);
// Loads the plug-in: see plugin/plugin_version.h.
[[nodiscard]] ExitStatus RunVersion(const CommandLine& line);
