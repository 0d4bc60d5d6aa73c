#include "plugin/plugin_library.h"

#include <dlfcn.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "platform/directory_stream.h"
#include "platform/shell_word.h"
#include "plugin/trusted_file.h"

using SASM::SimpleString;

namespace {

constexpr char kLibraryName[] = "corvaneplayer.so";
constexpr char kPathVariable[] = "MOZ_PLUGIN_PATH";
constexpr const char* kDirectories[] = {
    "/usr/lib/nsbrowser/plugins",        "/usr/lib64/nsbrowser/plugins",
    "/usr/lib32/nsbrowser/plugins",      "/usr/local/lib/netscape/plugins",
    "/usr/local/lib32/netscape/plugins", "/usr/local/lib64/netscape/plugins",
    "/usr/lib/corvaneplugin-installer",  "~/.mozilla/plugins",
};
// Without the command or its database, the shell or the command prints an
// error that is none to the user.
constexpr char kLocateCommand[] = "locate corvaneplayer.so 2>/dev/null";
constexpr int kLongestLine = 1023;

struct ClosePipe {
  void operator()(FILE* pipe) const { (void)pclose(pipe); }
};

bool IsRegularFile(const char* path) {
  struct stat info;
  return stat(path, &info) == 0 && S_ISREG(info.st_mode);
}

void* LoadLibrary(const char* path) {
  (void)dlerror();  // clears it
  return IsRegularFile(path) ? dlopen(path, RTLD_LAZY) : nullptr;
}

// Empty when the directory cannot be opened or has no match.
SimpleString FirstMatchIn(const char* directory) {
  const DirectoryStream entries = OpenDirectoryStream(AT_FDCWD, directory);
  if (!entries) return {};
  while (const dirent* entry = readdir(entries.get())) {
    if (std::strstr(entry->d_name, kLibraryName)) {
      return SimpleString::Joined({directory, "/", entry->d_name});
    }
  }
  return {};
}

void* LoadFromDirectory(const char* directory) {
  const SimpleString expanded = FirstShellWord(directory);
  if (expanded.IsEmpty()) return nullptr;
  const SimpleString path = FirstMatchIn(expanded.c_str());
  return path.IsEmpty() ? nullptr : LoadLibrary(path.c_str());
}

void* LoadFromEnvironment() {
  const char* variable = std::getenv(kPathVariable);
  std::string items = variable ? variable : "";
  char* rest = nullptr;
  for (char* item = strtok_r(items.data(), ":", &rest); item;
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
  // The database lists the files of all users, whoever made them.
  const std::string path = TrustedFile(line);
  return path.empty() ? nullptr : LoadLibrary(path.c_str());
}

}  // namespace

void* LoadPluginLibrary() {
  void* library = LoadFromEnvironment();
  if (!library) library = LoadFromKnownDirectories();
  return library ? library : LoadFromLocate();
}
