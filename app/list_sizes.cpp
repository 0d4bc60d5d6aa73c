#include "app/list_sizes.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/widget_helpers.h"
#include "model/storage_setting.h"

namespace {

enum class Content { kName, kUsedSpace, kPermission };

struct SizedColumn {
  const char* tree_view;
  const char* column;
  Content content;
};

constexpr SizedColumn kSizedColumns[] = {
    {"site_storage_treeview", "site_storage_site_column", Content::kName},
    {"site_storage_treeview", "site_storage_used_column", Content::kUsedSpace},
    {"site_storage_treeview", "site_storage_permission_column",
     Content::kPermission},
    {"site_privacy_treeview", "site_privacy_site_column", Content::kName},
    {"site_privacy_treeview", "site_privacy_cam_and_mic_column",
     Content::kPermission},
    {"site_p2p_treeview", "site_p2p_site_column", Content::kName},
    {"site_p2p_treeview", "site_p2p_permission_column", Content::kPermission},
    {"trusted_locations_treeview", "trusted_location_column", Content::kName},
};

// The longest text of each unit of size.
constexpr double kLongSizes[] = {0, 1023, 1048064, 1073741823, 1099511627775};

// Texts as wide as any that the column will show.
std::vector<std::string> WidestTexts(GnomeTCCapplet* panel, Content content) {
  std::vector<std::string> texts;
  if (content == Content::kPermission) {
    for (const PermissionChoice& choice : kPermissionChoices) {
      texts.emplace_back(permission_state_text(panel, choice.state));
    }
  } else if (content == Content::kUsedSpace) {
    for (const double bytes : kLongSizes) {
      texts.push_back(StorageSetting::TextOfSpace(bytes));
    }
  } else {
    texts.emplace_back();  // a name takes a width of its own, and is cut to it
  }
  return texts;
}

int TitleWidth(GtkTreeViewColumn* column) {
  // With the arrow that shows how the list is sorted.
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

void SetWidths(GtkWidget* view, GtkStyle*, gpointer data) {
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  for (const SizedColumn& row : kSizedColumns) {
    GtkTreeViewColumn* column = get_column(panel->builder, row.column);
    if (gtk_tree_view_column_get_tree_view(column) != view) continue;
    int width = TitleWidth(column);
    for (const std::string& text : WidestTexts(panel, row.content)) {
      width = std::max(width, CellWidth(column, text));
    }
    gtk_tree_view_column_set_fixed_width(column, width);
  }
}

}  // namespace

void fix_list_sizes(GnomeTCCapplet* panel) {
  for (const SizedColumn& row : kSizedColumns) {
    GtkTreeViewColumn* column = get_column(panel->builder, row.column);
    gtk_tree_view_column_set_sizing(column, GTK_TREE_VIEW_COLUMN_FIXED);
  }
  for (const SizedColumn& row : kSizedColumns) {
    GtkTreeView* view = get_tree_view(panel->builder, row.tree_view);
    if (gtk_tree_view_get_fixed_height_mode(view)) continue;
    SetWidths(GTK_WIDGET(view), nullptr, panel);
    gtk_tree_view_set_fixed_height_mode(view, TRUE);
    g_signal_connect(view, "style-set", G_CALLBACK(SetWidths), panel);
  }
}
