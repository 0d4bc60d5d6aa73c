// What a command changes: worked out from the files as they are read, printed,
// and applied.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "cli/command_line.h"
#include "cli/store_view.h"
#include "store/settings_manager.h"

struct Change {
  // What a failure to apply it is reported about.
  std::string subject;
  // What is printed, a line each.
  std::vector<std::string> lines;
  // False when it could not be done.
  std::function<bool(SASM::SettingsManager&)> apply;
};

// "SUBJECT: WHAT", printable.
[[nodiscard]] std::string Line(std::string_view subject, std::string_view what);

class Changes {
 public:
  // Drops a change without lines.
  void Add(Change change);

  using Print = std::function<void(const std::string& line)>;
  static void PrintLine(const std::string& line) { std::puts(line.c_str()); }

  // Unless this is a --dry-run, applies the changes. Prints the lines of those
  // that were applied, or would be. Without changes opens nothing for writing.
  [[nodiscard]] ExitStatus Finish(const CommandLine& line,
                                  const Print& print = PrintLine) const;

 private:
  std::vector<Change> changes_;
};

// Whether the settings may be changed: their file is not damaged, and the user
// owns the home directory. Otherwise prints why not.
[[nodiscard]] bool MayChange(const StoreView& store);
// The part about the home directory.
[[nodiscard]] bool OwnsHome(const StoreView& store);

// Checks that all words can be names of sites; otherwise prints which cannot.
[[nodiscard]] bool AreSiteNames(const std::vector<const char*>& names);

// In the order of their first occurrences.
[[nodiscard]] std::vector<const char*> WithoutRepetitions(
    const std::vector<const char*>& words);

// The worse of two results.
[[nodiscard]] inline ExitStatus Worse(ExitStatus a, ExitStatus b) {
  return a > b ? a : b;
}
