// Programs that a test starts, and waiting for what they do.
#pragma once

#include <glib.h>

#include <functional>
#include <string>
#include <vector>

// Looks again and again, until the condition holds (true) or half a minute is
// over (false).
[[nodiscard]] bool Eventually(const std::function<bool()>& condition);

// A program started on its own, killed at the end if it still runs.
class Process {
 public:
  // The environment is that of the test with the settings "NAME=VALUE", of
  // which "NAME" alone takes one away.
  explicit Process(const std::vector<std::string>& command,
                   const std::vector<std::string>& settings = {});
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  [[nodiscard]] int Id() const { return id_; }
  [[nodiscard]] bool IsRunning();
  // Waits for the end: the exit status, or -1 of a program that crashed or
  // goes on.
  [[nodiscard]] int ExitStatus();
  // What it has written so far.
  [[nodiscard]] std::string Output() const;
  [[nodiscard]] std::string Errors() const;

 private:
  GPid id_ = 0;
  int output_ = -1;
  int errors_ = -1;
  bool is_running_ = false;
  int status_ = -1;  // as of waitpid(2)
};
