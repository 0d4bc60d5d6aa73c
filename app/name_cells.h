// Shows names from files in lists.
#pragma once

#include <gtk/gtk.h>

// Shows the names of kNameColumn in that column of the view: at most some
// hundred characters, with invisible characters escaped. Where the column cuts
// a name, a tooltip shows more of it, but never covers half the screen.
void show_names(GtkTreeView* view, GtkTreeViewColumn* column);
