#include "app/list_selection.h"

#include "app/lists.h"
#include "app/widget_helpers.h"

void for_each_selected(GnomeTCCapplet* panel, const char* tree_view_id,
                       GtkTreeSelectionForeachFunc function, gpointer data) {
  GtkTreeView* view = get_tree_view(panel->builder, tree_view_id);
  gtk_tree_selection_selected_foreach(gtk_tree_view_get_selection(view),
                                      function, data);
}

SASM::SimpleString get_domain_field(GnomeTCCapplet*, GtkTreeModel* model,
                                    GtkTreeIter* row) {
  return get_text_field(model, row, kNameColumn);
}
