// The pointer while the program is busy.
#pragma once

#include <cstddef>

#include "app/gnome_tcc_applet.h"

// Shows the busy pointer over all windows of the program for as long as it
// lives, after painting what of them waits to be painted: an action that takes
// longer than a tenth of a second leaves nothing unpainted that the user could
// wait for. Does nothing for few sites, whose action takes less.
class BusyPointer {
 public:
  // For an action on all listed sites, or on some and the list of all.
  explicit BusyPointer(GnomeTCCapplet* panel);
  // For an action of unknown length.
  BusyPointer();
  ~BusyPointer();
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  bool is_shown_;
};
