#include "app/list_sizes.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/lists.h"
#include "app/widget_helpers.h"
#include "model/storage_setting.h"

namespace {

// Sizes in bytes that give the longest text in each unit.
constexpr double kLongSizes[] = {0, 1023, 1048064, 1073741823, 1099511627775};

// The widest texts that the column will show.
std::vector<std::string> WidestTexts(GnomeTCCapplet* panel, Content content) {
  std::vector<std::string> texts;
  switch (content) {
    case Content::kUsedSpace:
      for (const double bytes : kLongSizes) {
        texts.push_back(StorageSetting::TextOfSpace(bytes));
      }
      break;
    case Content::kPermission:
      for (const PermissionChoice& choice : kPermissionChoices) {
        texts.emplace_back(permission_state_text(panel, choice.state));
      }
      break;
    case Content::kSite:
    case Content::kLocation:
      texts.emplace_back();  // names get the renderer's own width
      break;
  }
  return texts;
}

int TitleWidth(GtkTreeViewColumn* column) {
  // Includes the arrow that shows the order of the list.
  const bool is_sorted = gtk_tree_view_column_get_sort_indicator(column);
  gtk_tree_view_column_set_sort_indicator(column, TRUE);
  GtkRequisition wanted;
  gtk_widget_size_request(column->button, &wanted);
  gtk_tree_view_column_set_sort_indicator(column, is_sorted);
  return wanted.width;
}

int CellWidth(GtkTreeViewColumn* column, const std::string& text) {
  g_object_set(get_renderer(column), "text", text.c_str(), nullptr);
  int width = 0;
  gtk_tree_view_column_cell_get_size(column, nullptr, nullptr, nullptr, &width,
                                     nullptr);
  int separator = 0;
  gtk_widget_style_get(gtk_tree_view_column_get_tree_view(column),
                       "horizontal-separator", &separator, nullptr);
  return width + separator;
}

void SetWidth(GnomeTCCapplet* panel, const Column& row) {
  GtkTreeViewColumn* column = get_column(panel->builder, row.id);
  int width = TitleWidth(column);
  for (const std::string& text : WidestTexts(panel, row.content)) {
    width = std::max(width, CellWidth(column, text));
  }
  gtk_tree_view_column_set_fixed_width(column, width);
}

void SetWidths(GtkWidget* view, GtkStyle*, GnomeTCCapplet* panel) {
  for (const List& list : kLists) {
    if (get_widget(panel->builder, list.tree_view) != view) continue;
    for (const Column& column : list.columns) SetWidth(panel, column);
  }
}

}  // namespace

void fix_list_sizes(GnomeTCCapplet* panel) {
  for (const List& list : kLists) {
    for (const Column& column : list.columns) {
      gtk_tree_view_column_set_sizing(get_column(panel->builder, column.id),
                                      GTK_TREE_VIEW_COLUMN_FIXED);
    }
    GtkTreeView* view = get_tree_view(panel->builder, list.tree_view);
    SetWidths(GTK_WIDGET(view), nullptr, panel);
    gtk_tree_view_set_fixed_height_mode(view, TRUE);
    g_signal_connect(view, "style-set", G_CALLBACK(SetWidths), panel);
  }
}
