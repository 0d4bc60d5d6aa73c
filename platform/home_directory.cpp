#include "platform/home_directory.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "platform/shell_word.h"

using SASM::SimpleString;

namespace {

bool IsAbsolute(const char* path) { return path && *path == '/'; }

// Empty when the shell's rules give no absolute path.
SimpleString ExpandAsShell(const char* path) {
  const char* home = std::getenv("HOME");
  // An empty HOME would turn "~/x" into "/x", which is nobody's home.
  if (home && !IsAbsolute(home)) return {};
  const SimpleString expanded = FirstShellWord(path);
  return IsAbsolute(expanded.c_str()) ? expanded : SimpleString();
}

SimpleString ExpandFromPasswordDatabase(const char* path) {
  const passwd* user = getpwuid(getuid());
  if (!user || !IsAbsolute(user->pw_dir)) return {};
  return SimpleString::Joined({user->pw_dir, path + 1});
}

}  // namespace

SimpleString ExpandHomeDirectory(const char* path) {
  SimpleString expanded = ExpandAsShell(path);
  if (expanded.IsEmpty()) expanded = ExpandFromPasswordDatabase(path);
  if (expanded.IsEmpty()) {
    std::fprintf(stderr,
                 "There is no home directory for \"%s\": nothing is kept on "
                 "disk.\n",
                 path);
  }
  return expanded;
}
