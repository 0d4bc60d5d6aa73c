// The texts of the windows.
#pragma once

#include "app/gnome_tcc_applet.h"

// Gives every widget of the UI definition its text in the user's language, and
// what has no visible label the name by which a screen reader knows it.
// Called once, at start.
void localize_widgets(GnomeTCCapplet* panel);
