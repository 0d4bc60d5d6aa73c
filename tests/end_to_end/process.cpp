#include "tests/end_to_end/process.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>

namespace {

constexpr std::chrono::seconds kPatience(30);
constexpr int kPause = 10;  // milliseconds

std::string Everything(int file) {
  std::string text;
  char bytes[4096];
  for (ssize_t count = 0;
       (count = pread(file, bytes, sizeof bytes,
                      static_cast<off_t>(text.size()))) > 0;) {
    text.append(bytes, static_cast<std::size_t>(count));
  }
  return text;
}

char** NewEnvironment(const std::vector<std::string>& settings) {
  char** environment = g_get_environ();
  for (const std::string& setting : settings) {
    const std::size_t equals = setting.find('=');
    const std::string name = setting.substr(0, equals);
    environment = equals == setting.npos
                      ? g_environ_unsetenv(environment, name.c_str())
                      : g_environ_setenv(environment, name.c_str(),
                                         setting.c_str() + equals + 1, TRUE);
  }
  return environment;
}

}  // namespace

bool Eventually(const std::function<bool()>& condition) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    while (g_main_context_iteration(nullptr, FALSE)) continue;
    (void)poll(nullptr, 0, kPause);
  }
  return true;
}

Process::Process(const std::vector<std::string>& command,
                 const std::vector<std::string>& settings)
    : output_(memfd_create("output", MFD_CLOEXEC)),
      errors_(memfd_create("errors", MFD_CLOEXEC)) {
  std::vector<char*> arguments;
  for (const std::string& word : command) {
    arguments.push_back(const_cast<char*>(word.c_str()));
  }
  arguments.push_back(nullptr);
  char** environment = NewEnvironment(settings);
  GError* error = nullptr;
  is_running_ = g_spawn_async_with_fds(
      nullptr, arguments.data(), environment,
      static_cast<GSpawnFlags>(G_SPAWN_DO_NOT_REAP_CHILD | G_SPAWN_SEARCH_PATH),
      nullptr, nullptr, &id_, -1, output_, errors_, &error);
  g_strfreev(environment);
  EXPECT_TRUE(is_running_) << error->message;
}

Process::~Process() {
  if (IsRunning()) {
    kill(id_, SIGKILL);
    (void)waitpid(id_, nullptr, 0);
  }
  close(output_);
  close(errors_);
}

bool Process::IsRunning() {
  if (is_running_ && waitpid(id_, &status_, WNOHANG) == id_) {
    is_running_ = false;
  }
  return is_running_;
}

int Process::ExitStatus() {
  const bool ended = Eventually([&] { return !IsRunning(); });
  return ended && WIFEXITED(status_) ? WEXITSTATUS(status_) : -1;
}

std::string Process::Output() const { return Everything(output_); }
std::string Process::Errors() const { return Everything(errors_); }
