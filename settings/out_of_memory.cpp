#include "settings/out_of_memory.h"

#include <cstdio>
#include <cstdlib>
#include <new>

void ExitWhenOutOfMemory() { std::set_new_handler(ExitOutOfMemory); }

void ExitOutOfMemory() {
  // Standard error has no buffer: this allocates nothing.
  std::fputs("Out of memory.\n", stderr);
  std::_Exit(EXIT_FAILURE);
}
