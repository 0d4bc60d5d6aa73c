#include "app/name_cells.h"

#include <string>

#include "app/lists.h"
#include "app/widget_helpers.h"
#include "strings/printable_text.h"

namespace {

// The toolkit's padding on both sides of a text in a list.
constexpr int kPadding = 2 + 2;  // pixels

// Longer than the name of any host.
constexpr std::size_t kLongestShownName = 256;  // characters

std::string ShownName(const SASM::SimpleString& name) {
  return PrintableExcerpt(name.c_str(), kLongestShownName);
}

void ShowName(GtkTreeViewColumn*, GtkCellRenderer* renderer,
              GtkTreeModel* model, GtkTreeIter* row, gpointer) {
  const SASM::SimpleString name = get_text_field(model, row, kNameColumn);
  g_object_set(renderer, "text", ShownName(name).c_str(), nullptr);
}

// True when the column that shows the name is too narrow for it.
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

// A hyphen at a line break would look like a part of the name.
PangoAttrList* NewAttributesWithoutHyphens() {
  PangoAttrList* attributes = pango_attr_list_new();
  pango_attr_list_insert(attributes, pango_attr_insert_hyphens_new(FALSE));
  return attributes;
}

// Lines break anywhere: a name may have no spaces.
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

// Shows as much of the name as fits a third of the screen in each direction.
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

// Shows the whole name where its column cuts it.
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

}  // namespace

void show_names(GtkTreeView* view, GtkTreeViewColumn* column) {
  GtkCellRenderer* renderer = get_renderer(column);
  g_object_ref(renderer);
  gtk_cell_layout_clear(GTK_CELL_LAYOUT(column));
  // The UI builder packs a renderer so that it does not grow with its column.
  gtk_tree_view_column_pack_start(column, renderer, TRUE);
  g_object_unref(renderer);
  gtk_tree_view_column_set_cell_data_func(column, renderer, ShowName, nullptr,
                                          nullptr);
  gtk_widget_set_has_tooltip(GTK_WIDGET(view), TRUE);
  g_signal_connect(view, "query-tooltip", G_CALLBACK(ShowTooltip), nullptr);
}
