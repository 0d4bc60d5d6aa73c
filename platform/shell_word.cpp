#include "platform/shell_word.h"

#include <wordexp.h>

using SASM::SimpleString;

SimpleString FirstShellWord(const char* text) {
  wordexp_t words = {};
  const int result = wordexp(text, &words, WRDE_NOCMD);
  SimpleString first;
  if (result == 0 && words.we_wordc > 0) first = words.we_wordv[0];
  // Words may have been allocated before memory ran out (POSIX: wordexp).
  if (result == 0 || result == WRDE_NOSPACE) wordfree(&words);
  if (result == WRDE_NOSPACE) first = SimpleString::WithoutText();
  return first;
}
