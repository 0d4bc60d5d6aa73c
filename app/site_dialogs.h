// The three dialogs with a permission of each site.
#pragma once

#include "app/gnome_tcc_applet.h"

// Lets the combo box of a row begin with the state of all selected rows, if
// they share one.
void prepare_choices(GnomeTCCapplet* panel);
