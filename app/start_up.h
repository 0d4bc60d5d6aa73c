// The steps from the first line of main to the shown window.
#pragma once

#include "app/gnome_tcc_applet.h"

// The state record, zero-filled but for its strings. Never freed.
GnomeTCCapplet* new_panel();

// Opens the settings, which reads them from disk, loads the UI definition and
// prepares every widget of it, and shows the main window with the page of
// that name; null and unknown names are the first page. False after showing
// an error dialog, which ends the main loop when it is closed.
[[nodiscard]] bool open_panel(GnomeTCCapplet* panel, const char* page_name);
