// What every list does beyond what the UI definition can say.
#pragma once

#include "app/gnome_tcc_applet.h"

// Several rows can be selected; names are shown as name_cells.h says; Delete
// does what the list's Remove button does; a click on a permission keeps the
// selection.
void prepare_lists(GnomeTCCapplet* panel);
