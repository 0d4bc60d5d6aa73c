// The expansion of a text as a shell expands a word.
#pragma once

#include "settings/simple_string.h"

// The first word that a shell makes of `text`: "~" and variables are replaced
// by their values, a blank ends the word, commands are not run. Empty when the
// shell makes no word of it or refuses it.
[[nodiscard]] SASM::SimpleString FirstShellWord(const char* text);
