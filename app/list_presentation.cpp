#include "app/list_presentation.h"

#include <gdk/gdkkeysyms.h>

#include "app/lists.h"
#include "app/name_cells.h"
#include "app/selection_editing.h"
#include "app/widget_helpers.h"

namespace {

gboolean RemoveOnDelete(GtkWidget*, GdkEventKey* event, gpointer button) {
  const bool is_delete =
      event->keyval == GDK_Delete || event->keyval == GDK_KP_Delete;
  if (!is_delete || !gtk_widget_is_sensitive(GTK_WIDGET(button))) return FALSE;
  gtk_button_clicked(GTK_BUTTON(button));
  return TRUE;
}

// Skips subclasses, which manage their selection themselves.
void AllowSeveralRows(GtkBuilder* builder) {
  GSList* objects = gtk_builder_get_objects(builder);
  for (GSList* node = objects; node; node = node->next) {
    if (G_OBJECT_TYPE(node->data) != GTK_TYPE_TREE_VIEW) continue;
    gtk_tree_selection_set_mode(
        gtk_tree_view_get_selection(GTK_TREE_VIEW(node->data)),
        GTK_SELECTION_MULTIPLE);
  }
  g_slist_free(objects);
}

}  // namespace

void prepare_lists(GnomeTCCapplet* panel) {
  AllowSeveralRows(panel->builder);
  for (const List& list : kLists) {
    GtkTreeView* view = get_tree_view(panel->builder, list.tree_view);
    show_names(view, get_column(panel->builder, list.columns.front().id));
    g_signal_connect(view, "key-press-event", G_CALLBACK(RemoveOnDelete),
                     get_widget(panel->builder, list.remove_button));
    if (!list.permission) continue;
    keep_selection_when_editing(
        view, get_column(panel->builder, PermissionColumn(list).id));
  }
}
