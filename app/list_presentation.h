// Properties of lists that the UI definition cannot express.
#pragma once

#include "app/gnome_tcc_applet.h"

// Allows several rows to be selected, shows names as name_cells.h says, lets
// the Delete key press the Remove button, and lets a click on a permission keep
// the selection.
void prepare_lists(GnomeTCCapplet* panel);
