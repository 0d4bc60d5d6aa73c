#include "platform/home_directory.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "platform/shell_word.h"

using SASM::SimpleString;

namespace {

bool IsAbsolute(const char* path) { return path && *path == '/'; }

// Empty when the shell's rules give no absolute path, without a text when out
// of memory.
SimpleString ExpandAsShell(const char* path) {
  const char* home = std::getenv("HOME");
  // An empty HOME would turn "~/x" into "/x", which is nobody's home.
  if (home && !IsAbsolute(home)) return {};
  SimpleString expanded = FirstShellWord(path);
  if (expanded.HasText() && !IsAbsolute(expanded.c_str())) return {};
  return expanded;
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
