// Changing several selected rows through the combo box of one of them.
#pragma once

#include <gtk/gtk.h>

// A click on the column of a row that is one of several selected ones opens
// the combo box there and keeps the selection; the second click of a double
// click chooses nothing. The toolkit by itself opens the combo box only on the
// row where the selection began; on any other row it drops the selection.
void keep_selection_when_editing(GtkTreeView* view, GtkTreeViewColumn* column);
