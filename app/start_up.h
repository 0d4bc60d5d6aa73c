// The steps from the first line of main to the shown window, in their order.
#pragma once

#include "app/gnome_tcc_applet.h"

// The state record, zero-filled but for its strings. Never freed.
GnomeTCCapplet* new_panel();

// Creates the builder and the setting objects of the master domain; with the
// first of them the store, which reads the settings from disk.
void open_settings(GnomeTCCapplet* panel);

// Loads the UI definition. False after showing an error dialog, which ends
// the main loop when it is closed.
[[nodiscard]] bool load_ui(GnomeTCCapplet* panel);

// Connects the handlers that the UI definition names.
void connect_signals(GnomeTCCapplet* panel);

// Makes the page of that name current and fills it; null and unknown names
// are the first page.
void select_page(GnomeTCCapplet* panel, const char* page_name);

// Points the link buttons at their pages.
void set_links(GnomeTCCapplet* panel);
