// Messages on standard error.
#pragma once

#include <cstdint>

// "PROGRAM: NAME: MESSAGE", where the name is that of a file or a site.
void PrintError(const char* name, const char* message);
// "PROGRAM: FILE: byte OFFSET: MESSAGE".
void PrintDamage(const char* file, const char* message, std::uint64_t offset);
