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

bool Fits(GtkTreeView* view, const std::string& text, int room) {
  PangoLayout* layout =
      gtk_widget_create_pango_layout(GTK_WIDGET(view), text.c_str());
  int width = 0;
  pango_layout_get_pixel_size(layout, &width, nullptr);
  g_object_unref(layout);
  return width + kPadding <= room;
}

// As much of the name as fits. The toolkit would shorten it as well, but leave
// the rest of the room behind the ellipsis.
std::string FittingName(GtkTreeView* view, const SASM::SimpleString& name,
                        int room) {
  std::string text = ShownName(name);
  if (Fits(view, text, room)) return text;
  std::size_t fits = 1;
  std::size_t too_long = kLongestShownName;
  while (too_long - fits > 1) {
    const std::size_t middle = (fits + too_long) / 2;
    const std::string part = PrintableExcerpt(name.c_str(), middle);
    (Fits(view, part, room) ? fits : too_long) = middle;
  }
  return PrintableExcerpt(name.c_str(), fits);
}

// For names, in pixels.
int RoomIn(GtkTreeView* view, GtkTreeViewColumn* column) {
  GdkRectangle cell;
  GtkTreePath* any_row = gtk_tree_path_new_first();
  gtk_tree_view_get_cell_area(view, any_row, column, &cell);
  gtk_tree_path_free(any_row);
  return cell.width;
}

// Screen readers ask in the same way, and get the whole name.
bool IsBeingDrawn() {
  GdkEvent* event = gtk_get_current_event();
  const bool is_expose = event && event->type == GDK_EXPOSE;
  if (event) gdk_event_free(event);
  return is_expose;
}

// In Japanese and Korean, the ellipsis of a plain name would come from a font
// of theirs, whose greater height moves the text down.
PangoAttrList* NewEnglish() {
  PangoAttrList* attributes = pango_attr_list_new();
  pango_attr_list_insert(
      attributes, pango_attr_language_new(pango_language_from_string("en")));
  return attributes;
}

void ShowName(GtkTreeViewColumn* column, GtkCellRenderer* renderer,
              GtkTreeModel* model, GtkTreeIter* row, gpointer) {
  auto* view = GTK_TREE_VIEW(gtk_tree_view_column_get_tree_view(column));
  const SASM::SimpleString name = get_text_field(model, row, kNameColumn);
  const std::string text = IsBeingDrawn()
                               ? FittingName(view, name, RoomIn(view, column))
                               : ShownName(name);
  g_object_set(renderer, "text", text.c_str(), nullptr);
  // The renderer has a property for the language, but fails to free it.
  PangoAttrList* attributes =
      g_str_is_ascii(name.c_str()) ? NewEnglish() : nullptr;
  g_object_set(renderer, "attributes", attributes, nullptr);
  if (attributes) pango_attr_list_unref(attributes);
}

// In the column that shows it.
bool IsCut(GtkTreeView* view, GtkTreePath* path, const std::string& name) {
  GdkRectangle cell;
  gtk_tree_view_get_cell_area(
      view, path, gtk_tree_view_get_column(view, kNameColumn), &cell);
  return !Fits(view, name, cell.width);
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
