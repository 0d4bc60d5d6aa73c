// Paths below the user's home directory.
#pragma once

#include "settings/simple_string.h"

// Expands a path that begins with "~" to an absolute one, as a shell would,
// and where a shell could not, with the home directory of the password
// database. Without any home directory says so on standard error and returns
// the empty text.
[[nodiscard]] SASM::SimpleString ExpandHomeDirectory(const char* path);
