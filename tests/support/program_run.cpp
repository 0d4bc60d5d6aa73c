#include "tests/support/program_run.h"

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;

namespace {

std::string TakeFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return (std::ostringstream() << file.rdbuf()).str();
}

}  // namespace

ProgramRun RunCommand(const std::string& command) {
  std::string pattern = fs::temp_directory_path() / "run-XXXXXX";
  const fs::path directory = mkdtemp(pattern.data());
  const std::string output = directory / "output";
  const std::string errors = directory / "errors";
  const std::string redirected =
      "{ " + command + "\n} >" + Quoted(output) + " 2>" + Quoted(errors);
  const int result = std::system(redirected.c_str());
  const ProgramRun run = {WIFEXITED(result) ? WEXITSTATUS(result) : -1,
                          TakeFile(output), TakeFile(errors)};
  fs::remove_all(directory);
  return run;
}

std::string Quoted(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) {
    if (c == '\'') {
      quoted += "'\\''";
    } else {
      quoted += c;
    }
  }
  return quoted + "'";
}
