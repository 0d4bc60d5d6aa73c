#include "app/list_sorting.h"

#include <cstdarg>
#include <string_view>

#include "app/widget_helpers.h"

namespace {

// Set on a list store whose rows are being appended in its order.
GQuark InOrder() { return g_quark_from_static_string("rows-are-in-order"); }

SortKey DomainKey(GtkTreeModel* model, GtkTreeIter* row, int column) {
  return sort_key_of_domain(get_text_field(model, row, column).c_str());
}

SortKey NumberKey(GtkTreeModel* model, GtkTreeIter* row, int column) {
  guint number = 0;
  gtk_tree_model_get(model, row, column, &number, -1);
  return {.number = number};
}

gint Compare(SortKey (*key_of)(GtkTreeModel*, GtkTreeIter*, int),
             GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
             gpointer data) {
  if (g_object_get_qdata(G_OBJECT(model), InOrder())) return 0;
  const int column = GPOINTER_TO_INT(data);
  const auto order = key_of(model, a, column) <=> key_of(model, b, column);
  return order < 0 ? -1 : order > 0 ? 1 : 0;
}

// Null where the toolkit's own order is used.
GtkTreeIterCompareFunc SortFunctionFor(Content content) {
  switch (content) {
    case Content::kSite:
      return compare_domain_column;
    case Content::kUsedSpace:
    case Content::kPermission:
      return compare_int_column;
    case Content::kLocation:
      break;
  }
  return nullptr;
}

}  // namespace

SortKey sort_key_of_domain(const char* domain) {
  return {.text = reverse_domain_components(domain)};
}

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

gint compare_domain_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                           gpointer column) {
  return Compare(DomainKey, model, a, b, column);
}

gint compare_int_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                        gpointer column) {
  return Compare(NumberKey, model, a, b, column);
}

// Variadic like similar calls of the toolkit.
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

void prepare_list_sorting(GnomeTCCapplet* panel) {
  for (const List& list : kLists) {
    for (const Column& column : list.columns) {
      if (const auto compare = SortFunctionFor(column.content)) {
        tree_model_set_column_comparator(panel, list.store, compare,
                                         column.sort_column, -1);
      }
      gtk_tree_view_column_set_sort_column_id(
          get_column(panel->builder, column.id), column.sort_column);
    }
  }
}

RowsInOrder::RowsInOrder(GtkListStore* store) : store_(store) {
  g_object_set_qdata(G_OBJECT(store_), InOrder(), store_);
}

RowsInOrder::~RowsInOrder() {
  g_object_set_qdata(G_OBJECT(store_), InOrder(), nullptr);
}
