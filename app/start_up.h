// Start-up, until the window is shown.
#pragma once

#include "app/gnome_tcc_applet.h"

// A state record that is zero except for its strings. Never freed.
GnomeTCCapplet* new_panel();

// Reads the settings from disk, loads the UI definition, prepares its widgets,
// and shows the main window with the page of that name; null and unknown names
// mean the first page. On failure shows an error dialog, which ends the main
// loop when it is closed, and returns false.
[[nodiscard]] bool open_panel(GnomeTCCapplet* panel, const char* page_name);
