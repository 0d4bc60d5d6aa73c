// The sizes of columns and rows of the lists.
#pragma once

#include "app/gnome_tcc_applet.h"

// Gives all rows of a list one height, and its columns widths that fit their
// titles and whatever may stand in them; names share what is left. A list
// thus shows at once, however long it is: rows of unknown height are measured
// one by one. To be called when the columns have their titles; follows later
// changes of the theme by itself.
void fix_list_sizes(GnomeTCCapplet* panel);
