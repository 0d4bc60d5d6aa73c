#include "platform/shell_word.h"

#include <wordexp.h>

#include "settings/out_of_memory.h"

using SASM::SimpleString;

SimpleString FirstShellWord(const char* text) {
  wordexp_t words = {};
  const int result = wordexp(text, &words, WRDE_NOCMD);
  if (result == WRDE_NOSPACE) ExitOutOfMemory();
  if (result != 0) return {};
  SimpleString first;
  if (words.we_wordc > 0) first = words.we_wordv[0];
  wordfree(&words);
  return first;
}
