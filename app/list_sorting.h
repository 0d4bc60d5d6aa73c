// Sorting of lists by a click on a column's head.
#pragma once

#include <string>

#include "app/gnome_tcc_applet.h"

// Registers the function on the list store for each of the sort ids, which
// end at the first negative one. A sort id is the column that the function
// reads, and its user data.
void tree_model_set_column_comparator(GnomeTCCapplet* panel,
                                      const char* list_store_id,
                                      GtkTreeIterCompareFunc compare,
                                      int sort_id, ...);

// Sort functions. Domain names compare by their components from the last to
// the first, byte by byte; integers as unsigned ones.
gint compare_domain_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                           gpointer column);
gint compare_int_column(GtkTreeModel* model, GtkTreeIter* a, GtkTreeIter* b,
                        gpointer column);

// While it lives the sort functions take all rows for equal: a sorted list that
// is filled in its order then keeps each row where it is put.
class RowsInOrder {
 public:
  RowsInOrder();
  ~RowsInOrder();
  RowsInOrder(const RowsInOrder&) = delete;
  RowsInOrder& operator=(const RowsInOrder&) = delete;
};

// "shop.example.com" becomes "com.example.shop". Empty components go.
std::string reverse_domain_components(const char* domain);

// Gives the lists their sort functions and the columns their sort ids.
void prepare_list_sorting(GnomeTCCapplet* panel);
