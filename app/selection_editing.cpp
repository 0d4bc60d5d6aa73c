#include "app/selection_editing.h"

#include <algorithm>
#include <cmath>

namespace {

// The click that opened a menu, or the last one that was ignored since.
struct PreviousClick {
  guint32 time;  // milliseconds, by the clock of the display
  double x;      // pixels on the screen
  double y;
  bool is_pressed;
};

bool IsPlainClick(GtkTreeView* view, const GdkEventButton& event) {
  return event.window == gtk_tree_view_get_bin_window(view) &&
         event.button == 1 && event.type != GDK_2BUTTON_PRESS &&
         event.type != GDK_3BUTTON_PRESS &&
         (event.state & gtk_accelerator_get_default_mod_mask()) == 0;
}

// The row under the pointer if the pointer is in the column and the row is one
// of several selected ones; otherwise null. The caller owns it.
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

// Allows for slow and unsteady hands.
bool IsDoubleClick(GtkWidget* widget, const PreviousClick& first,
                   const GdkEventButton& second) {
  constexpr int kShortestTime = 600;  // milliseconds between two clicks
  constexpr double kDistance = 16;    // pixels
  int time = 0;
  g_object_get(gtk_widget_get_settings(widget), "gtk-double-click-time", &time,
               nullptr);
  return second.time - first.time <
             static_cast<guint32>(std::max(time, kShortestTime)) &&
         std::hypot(second.x_root - first.x, second.y_root - first.y) <
             kDistance;
}

PreviousClick ClickOf(const GdkEventButton& event) {
  return {event.time, event.x_root, event.y_root,
          event.type == GDK_BUTTON_PRESS};
}

// Hides the second click of a double click from the menu that the first click
// opened: the menu would take it as a choice.
gboolean HideSecondClick(GtkWidget* menu, GdkEvent* event, gpointer data) {
  const bool is_press = event->type == GDK_BUTTON_PRESS;
  if (!is_press && event->type != GDK_BUTTON_RELEASE) return FALSE;
  auto* opening = static_cast<PreviousClick*>(data);
  const bool ends_ignored_press = !is_press && opening->is_pressed;
  if (!ends_ignored_press && !IsDoubleClick(menu, *opening, event->button)) {
    return FALSE;
  }
  *opening = ClickOf(event->button);
  return TRUE;
}

// Does nothing where a theme replaces the menu by a list: the list is opened by
// a click of its own.
void HideSecondClickFrom(GtkCellEditable* combo_box,
                         const GdkEventButton& opening) {
  GList* menus = gtk_menu_get_for_attach_widget(GTK_WIDGET(combo_box));
  if (!menus) return;
  g_signal_connect_data(
      menus->data, "event", G_CALLBACK(HideSecondClick),
      new PreviousClick(ClickOf(opening)),
      [](gpointer data, GClosure*) {
        delete static_cast<PreviousClick*>(data);
      },
      static_cast<GConnectFlags>(0));
}

// On release: an open menu would take the release as a choice.
gboolean EditKeepingSelection(GtkTreeView* view, GdkEventButton* release,
                              gpointer column) {
  auto* edited = GTK_TREE_VIEW_COLUMN(column);
  GtkTreePath* path = NewClickedRow(view, *release, edited);
  if (!path) return FALSE;
  gtk_widget_grab_focus(GTK_WIDGET(view));
  set_cursor_only(view, path, edited, CursorUse::kEdit);
  if (edited->editable_widget) {
    HideSecondClickFrom(edited->editable_widget, *release);
  }
  gtk_tree_path_free(path);
  return TRUE;
}

}  // namespace

void end_editing(GtkCellEditable* editor) {
  GtkWidget* list = gtk_widget_get_parent(GTK_WIDGET(editor));
  if (!list) return;
  gtk_cell_editable_editing_done(editor);
  gtk_cell_editable_remove_widget(editor);
  // By itself the toolkit drops a focus that is inside the editor.
  gtk_widget_grab_focus(list);
}

void keep_selection_when_editing(GtkTreeView* view, GtkTreeViewColumn* column) {
  g_signal_connect(view, "button-press-event", G_CALLBACK(KeepSelection),
                   column);
  g_signal_connect(view, "button-release-event",
                   G_CALLBACK(EditKeepingSelection), column);
}

void set_cursor_only(GtkTreeView* view, GtkTreePath* path,
                     GtkTreeViewColumn* column, CursorUse use) {
  GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
  AllowChanges(selection, FALSE);
  gtk_tree_view_set_cursor(view, path, column, use == CursorUse::kEdit);
  AllowChanges(selection, TRUE);
}
