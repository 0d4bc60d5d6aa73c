#include "app/selection_editing.h"

namespace {

bool IsPlainClick(GtkTreeView* view, const GdkEventButton& event) {
  return event.window == gtk_tree_view_get_bin_window(view) &&
         event.button == 1 && event.type != GDK_2BUTTON_PRESS &&
         event.type != GDK_3BUTTON_PRESS &&
         (event.state & gtk_accelerator_get_default_mod_mask()) == 0;
}

// The row under the pointer, owned by the caller, when the pointer is in the
// column and the row is one of several selected ones; else null.
GtkTreePath* NewClickedRow(GtkTreeView* view, const GdkEventButton& event,
                           GtkTreeViewColumn* column) {
  GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
  GtkTreePath* path = nullptr;
  GtkTreeViewColumn* clicked = nullptr;
  if (!IsPlainClick(view, event) ||
      gtk_tree_selection_count_selected_rows(selection) < 2 ||
      !gtk_tree_view_get_path_at_pos(view, static_cast<int>(event.x),
                                     static_cast<int>(event.y), &path, &clicked,
                                     nullptr, nullptr)) {
    return nullptr;
  }
  if (clicked == column &&
      gtk_tree_selection_path_is_selected(selection, path)) {
    return path;
  }
  gtk_tree_path_free(path);
  return nullptr;
}

gboolean KeepSelection(GtkTreeView* view, GdkEventButton* press,
                       gpointer column) {
  GtkTreePath* path = NewClickedRow(view, *press, GTK_TREE_VIEW_COLUMN(column));
  if (!path) return FALSE;
  gtk_tree_path_free(path);
  return TRUE;
}

void AllowChanges(GtkTreeSelection* selection, gboolean are_allowed) {
  const auto answer = [](GtkTreeSelection*, GtkTreeModel*, GtkTreePath*,
                         gboolean, gpointer allowed) -> gboolean {
    return GPOINTER_TO_INT(allowed);
  };
  gtk_tree_selection_set_select_function(selection, answer,
                                         GINT_TO_POINTER(are_allowed), nullptr);
}

// Not before the release, which a menu that is open takes for a choice.
gboolean EditKeepingSelection(GtkTreeView* view, GdkEventButton* release,
                              gpointer column) {
  auto* edited = GTK_TREE_VIEW_COLUMN(column);
  GtkTreePath* path = NewClickedRow(view, *release, edited);
  if (!path) return FALSE;
  GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
  gtk_widget_grab_focus(GTK_WIDGET(view));
  AllowChanges(selection, FALSE);
  gtk_tree_view_set_cursor(view, path, edited, TRUE);
  AllowChanges(selection, TRUE);
  gtk_tree_path_free(path);
  return TRUE;
}

}  // namespace

void keep_selection_when_editing(GtkTreeView* view, GtkTreeViewColumn* column) {
  g_signal_connect(view, "button-press-event", G_CALLBACK(KeepSelection),
                   column);
  g_signal_connect(view, "button-release-event",
                   G_CALLBACK(EditKeepingSelection), column);
}
