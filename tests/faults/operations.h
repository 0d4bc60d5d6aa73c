// The operations of a user on the store, for the tests that make them fail.
#pragma once

#include <span>

#include "tests/faults/panel.h"
#include "tests/support/temporary_home.h"

struct Outcome {
  bool result;  // what the operation returned
  const TemporaryHome::Snapshot& after;
};

struct Operation {
  enum class On { kNothing, kFiles, kPanel };

  const char* name;
  On on;  // kPanel: one that was started before
  bool (*run)(Panel& panel);
  // Expects what must hold in memory and on disk after a failed system call.
  void (*check)(Panel& panel, const Outcome& outcome);
  // Beginnings of the paths that may change.
  std::vector<std::string> may_change;
  // True when the result says whether the disk was changed as intended.
  bool reports = true;
  // False when the operation itself removes settings.
  bool keeps_settings = true;
};

[[nodiscard]] std::span<const Operation> AllOperations();
