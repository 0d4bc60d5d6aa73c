// The installed plug-in library.
#pragma once

// Finds the player's plug-in library and loads it, which runs its code inside
// this program. Never unloaded: a second call gives the same handle again.
//
// Looks, in this order and until a library is loaded, in
//   - the directories of the environment variable MOZ_PLUGIN_PATH, separated
//     by ":", empty items skipped,
//   - the plug-in directories of the browsers, system-wide ones first
//     (kDirectories in plugin_library.cpp),
//   - the file that the command "locate" of the PATH finds, if TrustedFile
//     accepts it.
// Only the first match of each counts, whether it can be loaded or not: in a
// directory the first entry, as the system lists them, whose name contains
// "corvaneplayer.so"; in the command's output the first line, cut to 1023
// bytes. Only a regular file is loaded, links followed; pipes, devices and
// directories are not opened.
//
// A directory is read as a shell reads a word (see FirstShellWord), and a
// relative one is searched below the current directory: "." in the variable,
// and "~/.mozilla/plugins" where HOME is relative. A file in a directory is
// loaded whoever owns it.
//
// Null when nothing was loaded. The dynamic loader's error state is cleared
// before each attempt, so that dlerror gives the reason of the last one.
// Prints nothing, and keeps the command quiet too.
[[nodiscard]] void* LoadPluginLibrary();
