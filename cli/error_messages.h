// What is wrong, told on standard error.
#pragma once

#include <cstdint>

// Both print a line that begins with the program's name and the file's or
// site's.
void PrintError(const char* name, const char* what);
void PrintDamage(const char* file, const char* what, std::uint64_t offset);
