// Names in lists, whatever a file holds.
#pragma once

#include <gtk/gtk.h>

// Shows the names of column 0 of the list store in that column of the view: at
// most some hundred characters, the invisible ones escaped. A name that is cut
// in its column is whole in its row's tooltip, as far as that fits the screen.
void show_names(GtkTreeView* view, GtkTreeViewColumn* column);
