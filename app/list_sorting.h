// Sorts lists when a column header is clicked.
#pragma once

#include <compare>
#include <string>

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"

// What rows are compared by: a number, or a text byte by byte.
struct SortKey {
  guint number = 0;
  std::string text = {};

  auto operator<=>(const SortKey&) const = default;
};

// Domains are compared by their components from the last to the first.
SortKey sort_key_of_domain(const char* domain);

// "shop.example.com" becomes "com.example.shop"; empty components are dropped.
std::string reverse_domain_components(const char* domain);

// Sort functions of list stores. `column` is the column that they compare: one
// of domains, and one of integers, which count as unsigned.
gint compare_domain_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                           gpointer column);
gint compare_int_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                        gpointer column);

// Registers the function on the list store for each sort id up to the first
// negative one. The sort id is also the function's user data: the column that
// it compares.
void tree_model_set_column_comparator(GnomeTCCapplet* panel,
                                      const char* list_store_id,
                                      GtkTreeIterCompareFunc compare,
                                      int sort_id, ...);

// Gives the lists their sort functions and the columns their sort ids.
void prepare_list_sorting(GnomeTCCapplet* panel);

// While it lives, the sort functions treat all rows of the list store as equal.
// Appending rows in their final order then costs no comparisons.
class RowsInOrder {
 public:
  explicit RowsInOrder(GtkListStore* store);
  ~RowsInOrder();
  RowsInOrder(const RowsInOrder&) = delete;
  RowsInOrder& operator=(const RowsInOrder&) = delete;

 private:
  GtkListStore* store_;
};
