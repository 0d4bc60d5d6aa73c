// Changing several selected rows through the combo box of one of them.
#pragma once

#include <gtk/gtk.h>

// A click on the column of a row that is one of several selected ones opens
// the combo box there and leaves the selection as it is. The toolkit by itself
// does so only on the row at which the selection began, and on any other row
// would lose the rest of the selection.
void keep_selection_when_editing(GtkTreeView* view, GtkTreeViewColumn* column);
