// The texts of the windows.
#pragma once

#include "app/gnome_tcc_applet.h"

// Gives every widget of the UI definition its text in the user's language.
// Called once, at start.
void localize_widgets(GnomeTCCapplet* panel);
