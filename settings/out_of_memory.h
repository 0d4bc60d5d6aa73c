// What the programs do when memory runs out.
#pragma once

// From here on a failed allocation ends the process as ExitOutOfMemory does.
// This covers every form of operator new, the nothrow forms included, but not
// malloc and its kin, which still return null.
//
// A change of a settings file allocates everything before it touches the file,
// so the exit leaves the old file or the new one.
void ExitWhenOutOfMemory();

// Prints one line on standard error and exits with status 1. Runs no exit
// handler, flushes no stream and touches no file. For a function of the C
// library that has run out of memory, where no other result would be right.
[[noreturn]] void ExitOutOfMemory();
