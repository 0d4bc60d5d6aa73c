#include "app/list_presentation.h"

#include <gdk/gdkkeysyms.h>

#include <string>

#include "app/selection_editing.h"
#include "app/widget_helpers.h"
#include "strings/printable_text.h"

namespace {

constexpr int kNameColumn = 0;

// The toolkit's, on both sides of a text in a list.
constexpr int kPadding = 2 + 2;  // pixels

// Longer than the name of any host.
constexpr std::size_t kLongestShownName = 256;  // characters

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

std::string ShownName(const SASM::SimpleString& name) {
  return PrintableExcerpt(name.c_str(), kLongestShownName);
}

void ShowName(GtkTreeViewColumn*, GtkCellRenderer* renderer,
              GtkTreeModel* model, GtkTreeIter* row, gpointer) {
  const SASM::SimpleString name = get_text_field(model, row, kNameColumn);
  g_object_set(renderer, "text", ShownName(name).c_str(), nullptr);
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

// In the column that shows it.
bool IsCut(GtkTreeView* view, GtkTreePath* path, const std::string& name) {
  GdkRectangle cell;
  gtk_tree_view_get_cell_area(
      view, path, gtk_tree_view_get_column(view, kNameColumn), &cell);
  PangoLayout* layout =
      gtk_widget_create_pango_layout(GTK_WIDGET(view), name.c_str());
  int width = 0;
  pango_layout_get_pixel_size(layout, &width, nullptr);
  g_object_unref(layout);
  return width + kPadding > cell.width;
}

// A hyphen at the end of a line would seem to belong to the name.
PangoAttrList* NewAttributesWithoutHyphens() {
  PangoAttrList* attributes = pango_attr_list_new();
  pango_attr_list_insert(attributes, pango_attr_insert_hyphens_new(FALSE));
  return attributes;
}

// Breaks lines anywhere: a name need not have blanks.
PangoLayout* NewWrappedLayout(GtkWidget* view, int width) {
  PangoLayout* layout = gtk_widget_create_pango_layout(view, nullptr);
  pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
  pango_layout_set_width(layout, width * PANGO_SCALE);
  PangoAttrList* attributes = NewAttributesWithoutHyphens();
  pango_layout_set_attributes(layout, attributes);
  pango_attr_list_unref(attributes);
  return layout;
}

// Shows the text of the layout in lines of that width.
GtkWidget* NewWrappedLabel(PangoLayout* layout, int width) {
  GtkWidget* label = gtk_label_new(pango_layout_get_text(layout));
  gtk_label_set_line_wrap(GTK_LABEL(label), TRUE);
  gtk_label_set_line_wrap_mode(GTK_LABEL(label), pango_layout_get_wrap(layout));
  gtk_label_set_attributes(GTK_LABEL(label),
                           pango_layout_get_attributes(layout));
  gtk_widget_set_size_request(label, width, -1);
  gtk_widget_show(label);
  return label;
}

// As much of the name as fits a third of the screen each way.
GtkWidget* NewTooltipLabel(GtkWidget* view, const SASM::SimpleString& name) {
  GdkScreen* screen = gtk_widget_get_screen(view);
  const int highest = gdk_screen_get_height(screen) / 3;
  PangoLayout* layout =
      NewWrappedLayout(view, gdk_screen_get_width(screen) / 3);
  int width = 0;
  int height = 0;
  std::size_t longest = kLongestShownName;
  do {
    const std::string text = PrintableExcerpt(name.c_str(), longest);
    pango_layout_set_text(layout, text.c_str(), -1);
    pango_layout_get_pixel_size(layout, &width, &height);
    longest /= 2;
  } while (height > highest && longest > 0);
  GtkWidget* label = NewWrappedLabel(layout, width);
  g_object_unref(layout);
  return label;
}

// Shows a name whole that is cut in its column.
gboolean ShowTooltip(GtkWidget* widget, gint x, gint y, gboolean keyboard_mode,
                     GtkTooltip* tooltip, gpointer) {
  auto* view = GTK_TREE_VIEW(widget);
  GtkTreeModel* model = nullptr;
  GtkTreePath* path = nullptr;
  GtkTreeIter row;
  if (!gtk_tree_view_get_tooltip_context(view, &x, &y, keyboard_mode, &model,
                                         &path, &row)) {
    return FALSE;
  }
  const SASM::SimpleString name = get_text_field(model, &row, kNameColumn);
  const bool is_cut = IsCut(view, path, ShownName(name));
  if (is_cut) {
    gtk_tooltip_set_custom(tooltip, NewTooltipLabel(widget, name));
    gtk_tree_view_set_tooltip_row(view, tooltip, path);
  }
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
    g_signal_connect(view, "query-tooltip", G_CALLBACK(ShowTooltip), nullptr);
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
