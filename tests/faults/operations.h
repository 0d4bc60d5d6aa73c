// What the fault tests do to a home.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/support/store_test.h"

inline constexpr char kA[] = "a.example";
inline constexpr char kB[] = "b.example";
inline constexpr char kNew[] = "c.example";

// Which home an operation is tried on; kPanel: by a panel that has started;
// kCommand: by a command, in a process of its own.
enum Home { kNothing, kFiles, kPanel, kCommand };

// What is known of an operation that meets a fault.
enum Rule : unsigned int {
  // Its result says whether the disk was changed as intended.
  kReports = 1 << 0,
  // A site that is listed and stores data has its settings.
  kListsWhatIsThere = 1 << 1,
  // The list and the limit of all sites in memory are the new ones.
  kForgetsAtOnce = 1 << 2,
  // It removes settings itself.
  kRemovesSettings = 1 << 3,
  // It changes a file more than once.
  kInSteps = 1 << 4,
};

struct Operation {
  const char* name;
  Home home;
  std::function<bool(StoreTest& panel)> run;
  // Beginnings of the paths that may change: a regular expression.
  std::string may_change;
  unsigned int rules = 0;
};

std::vector<Operation> Operations();
// Makes it the panel of all settings, too.
bool StartPanel(StoreTest& panel);
