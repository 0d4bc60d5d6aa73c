// Widths of columns and heights of rows.
#pragma once

#include "app/gnome_tcc_applet.h"

// Gives all rows of a list the same height, and each column a width that fits
// its title and the longest text that its kind of cell can show, and is not
// below its min_width in app/ui/corvane_player_properties.ui; names share the
// rest. Even a long list is then shown at once: otherwise the toolkit measures
// every row. Call this when the columns have their titles. Follows later
// changes of the theme.
void fix_list_sizes(GnomeTCCapplet* panel);
