#include "app/list_presentation.h"

#include <gdk/gdkkeysyms.h>

#include <string>

#include "app/display_text.h"
#include "app/selection_editing.h"
#include "app/widget_helpers.h"

namespace {

constexpr int kNameColumn = 0;

// The toolkit's, on both sides of a text in a list.
constexpr int kPadding = 2 + 2;  // pixels

// A tooltip of a longer name would not fit a screen.
constexpr glong kLongestTooltip = 4096;  // characters

struct List {
  const char* tree_view;
  // Shows the names of column 0.
  const char* column;
  const char* remove_button;
  // Shows a choice for each row, null where there is none.
  const char* choice_column;
};

constexpr List kLists[] = {
    {"site_storage_treeview", "site_storage_site_column",
     "remove_site_storage_setting_button", "site_storage_permission_column"},
    {"site_privacy_treeview", "site_privacy_site_column",
     "remove_site_privacy_setting_button", "site_privacy_cam_and_mic_column"},
    {"site_p2p_treeview", "site_p2p_site_column",
     "remove_site_p2p_setting_button", "site_p2p_permission_column"},
    {"trusted_locations_treeview", "trusted_location_column",
     "remove_trusted_location_button", nullptr},
};

// A list is called what its dialog is, an entry what its label says.
struct AccessibleName {
  const char* widget;
  int string_id;
};

constexpr AccessibleName kAccessibleNames[] = {
    {"site_storage_treeview", 61009},      {"site_privacy_treeview", 61005},
    {"site_p2p_treeview", 61007},          {"new_site_entry", 91000},
    {"trusted_locations_treeview", 81000}, {"trusted_location_entry", 84001},
};

void ShowName(GtkTreeViewColumn*, GtkCellRenderer* renderer,
              GtkTreeModel* model, GtkTreeIter* row, gpointer) {
  const SASM::SimpleString name = get_text_field(model, row, kNameColumn);
  g_object_set(renderer, "text", display_text(name.c_str()).c_str(), nullptr);
}

// The UI builder packs a renderer without letting it grow, so that a name would
// be cut in a column that has room for it.
void ShowNames(GtkTreeViewColumn* column) {
  GtkCellRenderer* renderer = get_renderer(column);
  g_object_ref(renderer);
  gtk_cell_layout_clear(GTK_CELL_LAYOUT(column));
  gtk_tree_view_column_pack_start(column, renderer, TRUE);
  g_object_unref(renderer);
  gtk_tree_view_column_set_cell_data_func(column, renderer, ShowName, nullptr,
                                          nullptr);
}

bool IsWider(GtkTreeView* view, GtkTreePath* path, const char* name) {
  GdkRectangle cell;
  gtk_tree_view_get_cell_area(
      view, path, gtk_tree_view_get_column(view, kNameColumn), &cell);
  PangoLayout* layout = gtk_widget_create_pango_layout(GTK_WIDGET(view), name);
  int width = 0;
  pango_layout_get_pixel_size(layout, &width, nullptr);
  g_object_unref(layout);
  return width + kPadding > cell.width;
}

// A name that is cut in its column.
gboolean ShowWholeName(GtkWidget* view, gint x, gint y, gboolean keyboard_mode,
                       GtkTooltip* tooltip, gpointer) {
  GtkTreeModel* model = nullptr;
  GtkTreePath* path = nullptr;
  GtkTreeIter row;
  if (!gtk_tree_view_get_tooltip_context(GTK_TREE_VIEW(view), &x, &y,
                                         keyboard_mode, &model, &path, &row)) {
    return FALSE;
  }
  std::string name =
      display_text(get_text_field(model, &row, kNameColumn).c_str());
  if (g_utf8_strlen(name.c_str(), -1) > kLongestTooltip) {
    name.resize(static_cast<std::size_t>(
        g_utf8_offset_to_pointer(name.c_str(), kLongestTooltip) -
        name.c_str()));
  }
  const bool is_cut = IsWider(GTK_TREE_VIEW(view), path, name.c_str());
  // As text, so that nothing in a name counts as markup.
  gtk_tooltip_set_text(tooltip, name.c_str());
  gtk_tree_view_set_tooltip_row(GTK_TREE_VIEW(view), tooltip, path);
  gtk_tree_path_free(path);
  return is_cut;
}

gboolean RemoveOnDelete(GtkWidget*, GdkEventKey* event, gpointer button) {
  const bool is_delete =
      event->keyval == GDK_Delete || event->keyval == GDK_KP_Delete;
  if (!is_delete || !gtk_widget_is_sensitive(GTK_WIDGET(button))) return FALSE;
  gtk_button_clicked(GTK_BUTTON(button));
  return TRUE;
}

// Not of subclasses, whose selection is their own affair.
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
    ShowNames(get_column(panel->builder, list.column));
    gtk_widget_set_has_tooltip(GTK_WIDGET(view), TRUE);
    g_signal_connect(view, "query-tooltip", G_CALLBACK(ShowWholeName), nullptr);
    g_signal_connect(view, "key-press-event", G_CALLBACK(RemoveOnDelete),
                     get_widget(panel->builder, list.remove_button));
    if (!list.choice_column) continue;
    keep_selection_when_editing(view,
                                get_column(panel->builder, list.choice_column));
  }
}

void set_accessible_names(GnomeTCCapplet* panel) {
  for (const AccessibleName& row : kAccessibleNames) {
    set_accessible_name(panel, row.widget, row.string_id);
  }
}
