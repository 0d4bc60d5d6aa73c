// Changes several selected rows through the combo box of one of them.
#pragma once

#include <gtk/gtk.h>

// When several rows are selected, a click on this column of one of them opens
// its combo box and keeps the selection. The toolkit by itself does so only on
// the row where the selection began, and drops the selection on any other. The
// second click of a double click is hidden from the menu, where it would be a
// choice for all of these rows. With one row selected it takes the choice that
// the row has.
void keep_selection_when_editing(GtkTreeView* view, GtkTreeViewColumn* column);

enum class CursorUse { kMove, kEdit };

// Puts the cursor on a cell, and edits it there if so told, without changing
// what is selected.
void set_cursor_only(GtkTreeView* view, GtkTreePath* path,
                     GtkTreeViewColumn* column, CursorUse use);

// Takes over what the editor of a cell holds, if it is still open, and closes
// it. The focus goes back to the list.
void end_editing(GtkCellEditable* editor);
