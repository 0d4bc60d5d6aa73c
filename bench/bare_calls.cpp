#include "bench/bare_calls.h"

#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>

#include "bench/harness.h"

namespace {

// Calls `visit` with what is in the directory, but for "." and "..".
template <typename Visit>
void ForEachEntry(int directory, Visit visit) {
  alignas(dirent64) unsigned char batch[32768];
  ssize_t size = 0;
  while ((size = getdents64(directory, batch, sizeof batch)) > 0) {
    for (ssize_t offset = 0; offset < size;) {
      auto* entry = static_cast<dirent64*>(static_cast<void*>(batch + offset));
      offset += entry->d_reclen;
      const char* name = entry->d_name;
      const bool is_self = std::strcmp(name, ".") == 0;
      if (!is_self && std::strcmp(name, "..") != 0) visit(entry);
    }
  }
}

int OpenDirectory(int parent, const char* name) {
  return openat(parent, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW);
}

// `visit` is given the open directory and an entry of it, `leave` the parent
// and the name of a directory that is done.
template <typename Visit, typename Leave>
void WalkTree(const std::string& path, Visit visit, Leave leave) {
  struct Level {
    std::string name;
    std::vector<std::string> waiting;
  };
  std::vector<Level> levels = {{path, {}}};
  int directory = OpenDirectory(AT_FDCWD, path.c_str());
  const auto read_level = [&] {
    ForEachEntry(directory, [&](const dirent64* entry) {
      visit(directory, entry);
      if (entry->d_type == DT_DIR) {
        levels.back().waiting.emplace_back(entry->d_name);
      }
    });
  };
  read_level();
  while (!levels.empty()) {
    if (!levels.back().waiting.empty()) {
      const std::string name = levels.back().waiting.back();
      levels.back().waiting.pop_back();
      const int child = OpenDirectory(directory, name.c_str());
      close(directory);
      directory = child;
      levels.push_back({name, {}});
      read_level();
      continue;
    }
    const std::string name = levels.back().name;
    levels.pop_back();
    const int parent =
        levels.empty() ? AT_FDCWD : OpenDirectory(directory, "..");
    close(directory);
    leave(parent, name.c_str());
    directory = parent;
  }
}

}  // namespace

void RewriteFile(const std::string& path, std::string_view bytes) {
  unlink(path.c_str());
  const int file =
      open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  Check(write(file, bytes.data(), bytes.size()) ==
            static_cast<ssize_t>(bytes.size()),
        path.c_str());
  close(file);
}

void ReadFile(const std::string& path, std::vector<char>* buffer) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  Check(read(file, buffer->data(), buffer->size()) >= 0, path.c_str());
  close(file);
}

void RemoveTree(const std::string& path) {
  WalkTree(
      path,
      [](int directory, const dirent64* entry) {
        if (entry->d_type != DT_DIR) unlinkat(directory, entry->d_name, 0);
      },
      [](int parent, const char* name) {
        unlinkat(parent, name, AT_REMOVEDIR);
      });
}

std::size_t SizeOfTree(const std::string& path) {
  struct stat info = {};
  stat(path.c_str(), &info);
  std::size_t sum = static_cast<std::size_t>(info.st_size);
  WalkTree(
      path,
      [&](int directory, const dirent64* entry) {
        fstatat(directory, entry->d_name, &info, 0);
        sum += static_cast<std::size_t>(info.st_size);
      },
      [](int, const char*) {});
  return sum;
}

pid_t StartProgram(std::vector<std::string> arguments) {
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null",
                                   O_WRONLY, 0);
  pid_t child = 0;
  Check(posix_spawnp(&child, argv[0], &actions, nullptr, argv.data(),
                     environ) == 0,
        argv[0]);
  posix_spawn_file_actions_destroy(&actions);
  return child;
}

void RunProgram(const std::vector<std::string>& arguments) {
  const pid_t child = StartProgram(arguments);
  int status = 0;
  Check(waitpid(child, &status, 0) == child && status == 0,
        arguments[0].c_str());
}
