// The texts of the windows.
#pragma once

#include "app/gnome_tcc_applet.h"

// Gives every widget of the UI definition its text in the user's language.
// Widgets without a label of their own get a name for screen readers. Called
// once, at the start.
void localize_widgets(GnomeTCCapplet* panel);
