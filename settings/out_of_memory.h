// What the programs do when memory runs out.
#pragma once

// From here on a failed allocation ends the process: one line on standard
// error, exit status 1. No exit handler runs, no stream is flushed and no file
// is touched. Applies to every form of operator new, the nothrow forms
// included; malloc and its kin still return null.
//
// Call this first in main. A change of a settings file allocates everything
// before it touches the file, so the exit leaves the old file or the new one.
void ExitWhenOutOfMemory();
