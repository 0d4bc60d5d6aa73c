// The three dialogs that list sites with one permission each.
#pragma once

#include "app/gnome_tcc_applet.h"

// Marks the state that all selected rows share, if they do, when the combo box
// of one of them opens.
void prepare_choices(GnomeTCCapplet* panel);
