#include "platform/home_directory.h"

#include <pwd.h>
#include <unistd.h>
#include <wordexp.h>

#include <cstdio>
#include <cstdlib>

using SASM::SimpleString;

namespace {

bool IsAbsolute(const char* path) { return path && *path == '/'; }

// Empty when the shell's rules give no absolute path, without a text when
// memory is short.
SimpleString ExpandAsShell(const char* path) {
  const char* home = std::getenv("HOME");
  // An empty HOME would turn "~/x" into "/x", which is nobody's home.
  if (home && !IsAbsolute(home)) return {};
  wordexp_t words = {};
  const int result = wordexp(path, &words, 0);
  const bool expanded =
      result == 0 && words.we_wordc > 0 && IsAbsolute(words.we_wordv[0]);
  SimpleString first = expanded ? words.we_wordv[0] : nullptr;
  // Words may have been allocated before memory ran out (POSIX: wordexp).
  if (result == 0 || result == WRDE_NOSPACE) wordfree(&words);
  if (result == WRDE_NOSPACE) first = SimpleString::WithoutText();
  return first;
}

SimpleString ExpandFromPasswordDatabase(const char* path) {
  const passwd* user = getpwuid(getuid());
  if (!user || !IsAbsolute(user->pw_dir)) return {};
  SimpleString expanded = user->pw_dir;
  (void)expanded.AppendString(path + 1);  // without a text on failure
  return expanded;
}

}  // namespace

SimpleString ExpandHomeDirectory(const char* path) {
  SimpleString expanded = ExpandAsShell(path);
  // For want of memory, not of a home: another home would be the wrong one.
  if (!expanded.HasText()) return expanded;
  if (expanded.IsEmpty()) expanded = ExpandFromPasswordDatabase(path);
  if (expanded.HasText() && expanded.IsEmpty()) {
    std::fprintf(stderr,
                 "There is no home directory for \"%s\": nothing is kept on "
                 "disk.\n",
                 path);
  }
  return expanded;
}
