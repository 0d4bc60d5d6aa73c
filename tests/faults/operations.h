// What a user does to the store, for the tests that make it fail.
#pragma once

#include <span>

#include "tests/faults/panel_home.h"

struct Outcome {
  bool result;         // what the operation returned
  bool memory_failed;  // the fault was an allocation's
  const Snapshot& before;
  const Snapshot& after;
};

struct Operation {
  const char* name;
  bool has_panel_files;  // false: nothing is there yet
  bool starts_panel;     // true: it is the start itself
  bool (*run)(Panel* panel);
  // Beginnings of the paths that may change.
  std::vector<std::string> may_change;
  // True when nothing that is there before is lost by the operation itself.
  bool keeps_settings;
  // What must hold in memory and on disk after a fault; empty or a complaint.
  std::string (*check)(Panel& panel, const Outcome& outcome);
};

[[nodiscard]] std::span<const Operation> AllOperations();
