// Keys that work in every window.
#pragma once

#include "app/gnome_tcc_applet.h"

// F5 reads the settings from disk again and refills the page, but not while a
// question waits for its answer. Ctrl+W closes a dialog as Escape does; Ctrl+Q
// ends the program.
void prepare_shortcuts(GnomeTCCapplet* panel);

// Gives the shortcuts to a window that the UI definition does not have, from
// one that has them; null is allowed.
void share_shortcuts(GtkWindow* from, GtkWindow* to);
