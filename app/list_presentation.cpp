#include "app/list_presentation.h"

#include <gdk/gdkkeysyms.h>

#include "app/lists.h"
#include "app/name_cells.h"
#include "app/name_search.h"
#include "app/removal_question.h"
#include "app/selection_editing.h"
#include "app/widget_helpers.h"

namespace {

const List& ListOf(GnomeTCCapplet* panel, GtkWidget* view) {
  for (const List& list : kLists) {
    if (get_widget(panel->builder, list.tree_view) == view) return list;
  }
  g_assert_not_reached();
}

// The key is pressed more easily than the button, and what a site has stored
// cannot be had back.
bool IsMeant(GnomeTCCapplet* panel, const List& list) {
  GtkTreeView* view = get_tree_view(panel->builder, list.tree_view);
  const int rows =
      gtk_tree_selection_count_selected_rows(gtk_tree_view_get_selection(view));
  return rows < 2 || !list.permission || confirm_removal(panel, list);
}

gboolean RemoveOnDelete(GtkWidget* view, GdkEventKey* event,
                        GnomeTCCapplet* panel) {
  const List& list = ListOf(panel, view);
  GtkWidget* button = get_widget(panel->builder, list.remove_button);
  const bool is_delete =
      event->keyval == GDK_Delete || event->keyval == GDK_KP_Delete;
  if (!is_delete || !gtk_widget_is_sensitive(button)) return FALSE;
  if (IsMeant(panel, list)) gtk_button_clicked(GTK_BUTTON(button));
  return TRUE;
}

// A row can be selected without a move of the cursor.
void AllowRemoval(GtkTreeSelection* selection, GtkWidget* button) {
  if (gtk_tree_selection_count_selected_rows(selection) > 0) {
    gtk_widget_set_sensitive(button, TRUE);
  }
}

// A hand over the cells of a column that a click opens.
gboolean PointAtChoices(GtkTreeView* view, GdkEventMotion* motion,
                        gpointer column) {
  GdkWindow* rows = gtk_tree_view_get_bin_window(view);
  GtkTreeViewColumn* under = nullptr;
  if (motion->window != rows) return FALSE;
  const bool is_row = gtk_tree_view_get_path_at_pos(
      view, static_cast<int>(motion->x), static_cast<int>(motion->y), nullptr,
      &under, nullptr, nullptr);
  const bool is_choice = is_row && under == column;
  if (is_choice == (gdk_window_get_cursor(rows) != nullptr)) return FALSE;
  GdkCursor* hand = is_choice ? gdk_cursor_new_for_display(
                                    gdk_window_get_display(rows), GDK_HAND2)
                              : nullptr;
  gdk_window_set_cursor(rows, hand);
  if (hand) gdk_cursor_unref(hand);
  return FALSE;
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
    find_names_by_any_part(view);
    g_signal_connect(view, "key-press-event", G_CALLBACK(RemoveOnDelete),
                     panel);
    g_signal_connect(gtk_tree_view_get_selection(view), "changed",
                     G_CALLBACK(AllowRemoval),
                     get_widget(panel->builder, list.remove_button));
    if (!list.permission) continue;
    GtkTreeViewColumn* choices =
        get_column(panel->builder, PermissionColumn(list).id);
    keep_selection_when_editing(view, choices);
    g_signal_connect(view, "motion-notify-event", G_CALLBACK(PointAtChoices),
                     choices);
  }
}
