// The selected rows of lists.
#pragma once

#include "app/gnome_tcc_applet.h"

// Calls the function for each selected row of that tree view.
void for_each_selected(GnomeTCCapplet* panel, const char* tree_view_id,
                       GtkTreeSelectionForeachFunc function, gpointer data);

// A copy of the row's domain.
SASM::SimpleString get_domain_field(GnomeTCCapplet* panel, GtkTreeModel* model,
                                    GtkTreeIter* row);
