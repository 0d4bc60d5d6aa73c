// Messages on standard error.
#pragma once

#include <string_view>

#include "cli/settings_source.h"

// "PROGRAM: NAME: MESSAGE", where the name is that of a file or a site. The
// message is printed as it is.
void PrintError(std::string_view name, std::string_view message);
void PrintProblem(const char* file, const FileProblem& problem);
