// The panel in this process, without its main loop.
#pragma once

#include "app/widget_helpers.h"

// Starts the panel up to its shown window, with no store: its document, its
// texts, its lists.
GnomeTCCapplet* StartWithoutStore(int* argc, char*** argv);

// Opens the store on what is now in the home directory, in place of one that
// was open.
void OpenStore(GnomeTCCapplet* panel);

// Runs the main loop until nothing waits.
void RunToIdle();
