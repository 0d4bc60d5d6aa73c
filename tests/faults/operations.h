// What a user does to the store, for the tests that make it fail.
#pragma once

#include <span>

#include "tests/faults/panel.h"
#include "tests/support/temporary_home.h"

struct Outcome {
  bool result;         // what the operation returned
  bool memory_failed;  // the fault was an allocation's
  const TemporaryHome::Snapshot& after;
};

struct Operation {
  enum class On { kNothing, kFiles, kPanel };

  const char* name;
  On on;  // kPanel: one that was started before
  bool (*run)(Panel& panel);
  // Expects what must hold in memory and on disk after a fault.
  void (*check)(Panel& panel, const Outcome& outcome);
  // Beginnings of the paths that may change.
  std::vector<std::string> may_change;
  // True when the result tells whether the disk was changed as it was meant.
  bool tells = true;
  // True when nothing that is there before is lost by the operation itself.
  bool keeps_settings = true;
};

[[nodiscard]] std::span<const Operation> AllOperations();
