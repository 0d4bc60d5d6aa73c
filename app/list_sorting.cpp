#include "app/list_sorting.h"

#include <cstdarg>
#include <string_view>

#include "app/widget_helpers.h"

namespace {

struct SortableColumn {
  const char* column;
  int sort_id;
};

constexpr SortableColumn kSortableColumns[] = {
    {"site_privacy_site_column", 0},
    {"site_privacy_cam_and_mic_column", 2},
    {"site_storage_site_column", 0},
    {"site_storage_used_column", 2},
    {"site_storage_permission_column", 4},
    {"site_p2p_site_column", 0},
    {"site_p2p_permission_column", 2},
    {"trusted_location_column", 0},
};

bool rows_are_in_order = false;

std::string ReversedColumn(GtkTreeModel* model, GtkTreeIter* row,
                           gpointer column) {
  const SASM::SimpleString text =
      get_text_field(model, row, GPOINTER_TO_INT(column));
  return reverse_domain_components(text.c_str());
}

guint UnsignedColumn(GtkTreeModel* model, GtkTreeIter* row, gpointer column) {
  guint value = 0;
  gtk_tree_model_get(model, row, GPOINTER_TO_INT(column), &value, -1);
  return value;
}

}  // namespace

// As the toolkit's own calls of this kind, it takes a list ended by -1.
// NOLINTNEXTLINE(cert-dcl50-cpp)
void tree_model_set_column_comparator(GnomeTCCapplet* panel,
                                      const char* list_store_id,
                                      GtkTreeIterCompareFunc compare,
                                      int sort_id, ...) {
  GtkListStore* store = get_list_store(panel->builder, list_store_id);
  va_list more;
  va_start(more, sort_id);
  for (; sort_id >= 0; sort_id = va_arg(more, int)) {
    gtk_tree_sortable_set_sort_func(GTK_TREE_SORTABLE(store), sort_id, compare,
                                    GINT_TO_POINTER(sort_id), nullptr);
  }
  va_end(more);
}

gint compare_domain_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                           gpointer column) {
  if (rows_are_in_order) return 0;
  return ReversedColumn(model, a, column)
      .compare(ReversedColumn(model, b, column));
}

gint compare_int_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                        gpointer column) {
  if (rows_are_in_order) return 0;
  const guint a_value = UnsignedColumn(model, a, column);
  const guint b_value = UnsignedColumn(model, b, column);
  return (a_value > b_value) - (a_value < b_value);
}

RowsInOrder::RowsInOrder() { rows_are_in_order = true; }

RowsInOrder::~RowsInOrder() { rows_are_in_order = false; }

std::string reverse_domain_components(const char* domain) {
  std::string_view rest = domain;
  std::string reversed;
  while (!rest.empty()) {
    const std::size_t dot = rest.rfind('.');
    const std::size_t start = dot == rest.npos ? 0 : dot + 1;
    const std::string_view component = rest.substr(start);
    if (!component.empty() && !reversed.empty()) reversed += '.';
    reversed += component;
    rest.remove_suffix(rest.size() - (dot == rest.npos ? 0 : dot));
  }
  return reversed;
}

void prepare_list_sorting(GnomeTCCapplet* panel) {
  tree_model_set_column_comparator(panel, "site_storage_list",
                                   compare_domain_column, 0, -1);
  tree_model_set_column_comparator(panel, "site_storage_list",
                                   compare_int_column, 2, 4, -1);
  for (const char* list : {"site_privacy_list", "site_p2p_list"}) {
    tree_model_set_column_comparator(panel, list, compare_domain_column, 0, -1);
    tree_model_set_column_comparator(panel, list, compare_int_column, 2, -1);
  }
  for (const SortableColumn& row : kSortableColumns) {
    gtk_tree_view_column_set_sort_column_id(
        get_column(panel->builder, row.column), row.sort_id);
  }
}
