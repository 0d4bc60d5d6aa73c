#include "plugin/plugin_library.h"

#include <dirent.h>
#include <dlfcn.h>
#include <sys/stat.h>
#include <wordexp.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr char kLibraryName[] = "corvaneplayer.so";
constexpr char kPathVariable[] = "MOZ_PLUGIN_PATH";
constexpr const char* kDirectories[] = {
    "/usr/lib/nsbrowser/plugins",        "/usr/lib64/nsbrowser/plugins",
    "/usr/lib32/nsbrowser/plugins",      "/usr/local/lib/netscape/plugins",
    "/usr/local/lib32/netscape/plugins", "/usr/local/lib64/netscape/plugins",
    "/usr/lib/corvaneplugin-installer",  "~/.mozilla/plugins",
};
// The shell or the command would say that there is no command, or no database
// of its own: neither is a failure to the user.
constexpr char kLocateCommand[] = "locate corvaneplayer.so 2>/dev/null";
constexpr int kLongestLine = 1023;

struct Free {
  void operator()(char* text) const { std::free(text); }
};
struct CloseDirectory {
  void operator()(DIR* directory) const { (void)closedir(directory); }
};
struct ClosePipe {
  void operator()(FILE* pipe) const { (void)pclose(pipe); }
};
// Null when there is none, or no memory for it.
using Text = std::unique_ptr<char, Free>;

bool IsRegularFile(const char* path) {
  struct stat info;
  return stat(path, &info) == 0 && S_ISREG(info.st_mode);
}

void* LoadLibrary(const char* path) {
  (void)dlerror();  // clears it
  return IsRegularFile(path) ? dlopen(path, RTLD_LAZY) : nullptr;
}

Text FirstWordOf(const char* text) {
  wordexp_t words = {};
  const int result = wordexp(text, &words, WRDE_NOCMD);
  const bool has_word = result == 0 && words.we_wordc > 0;
  Text first(has_word ? strdup(words.we_wordv[0]) : nullptr);
  // Words may have been allocated before memory ran out (POSIX: wordexp).
  if (result == 0 || result == WRDE_NOSPACE) wordfree(&words);
  return first;
}

Text Join(const char* directory, const char* name) {
  char* path = nullptr;
  const bool is_joined = asprintf(&path, "%s/%s", directory, name) >= 0;
  return Text(is_joined ? path : nullptr);
}

Text FirstMatchIn(const char* directory) {
  const std::unique_ptr<DIR, CloseDirectory> entries(opendir(directory));
  if (!entries) return nullptr;
  while (const dirent* entry = readdir(entries.get())) {
    if (std::strstr(entry->d_name, kLibraryName)) {
      return Join(directory, entry->d_name);
    }
  }
  return nullptr;
}

void* LoadFromDirectory(const char* directory) {
  const Text expanded = FirstWordOf(directory);
  const Text path = expanded ? FirstMatchIn(expanded.get()) : nullptr;
  return path ? LoadLibrary(path.get()) : nullptr;
}

void* LoadFromEnvironment() {
  const char* variable = std::getenv(kPathVariable);
  const Text items(variable ? strdup(variable) : nullptr);
  if (!items) return nullptr;
  char* rest = nullptr;
  for (char* item = strtok_r(items.get(), ":", &rest); item;
       item = strtok_r(nullptr, ":", &rest)) {
    if (void* library = LoadFromDirectory(item)) return library;
  }
  return nullptr;
}

void* LoadFromKnownDirectories() {
  for (const char* directory : kDirectories) {
    if (void* library = LoadFromDirectory(directory)) return library;
  }
  return nullptr;
}

void* LoadFromLocate() {
  // A constant command, found through PATH like every other.
  // NOLINTNEXTLINE(cert-env33-c)
  const std::unique_ptr<FILE, ClosePipe> pipe(popen(kLocateCommand, "r"));
  char line[kLongestLine + 1];
  if (!pipe || !std::fgets(line, sizeof line, pipe.get())) return nullptr;
  line[std::strcspn(line, "\n")] = '\0';
  // The loader would look a name without a directory up in places of its own.
  return std::strchr(line, '/') ? LoadLibrary(line) : nullptr;
}

}  // namespace

void* LoadPluginLibrary() {
  void* library = LoadFromEnvironment();
  if (!library) library = LoadFromKnownDirectories();
  return library ? library : LoadFromLocate();
}
