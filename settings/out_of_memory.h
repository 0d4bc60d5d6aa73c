// What the programs do when memory runs out.
#pragma once

// From here on a failed allocation ends the process as ExitOutOfMemory does.
// This covers every form of operator new, the nothrow forms included. malloc
// and its kin still return null: GLib and GTK+ then end the process themselves,
// jansson is given an allocator that does (cli/json.cpp).
//
// A change of a settings file allocates everything before it touches the file,
// so the exit leaves the old file or the new one.
void ExitWhenOutOfMemory();

// Prints "Out of memory." on standard error and exits with status 1. Runs no
// exit handler, flushes no stream and touches no file. For a function of the C
// library that has run out of memory, where no other result would be right.
[[noreturn]] void ExitOutOfMemory();
