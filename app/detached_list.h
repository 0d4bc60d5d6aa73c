// Filling a list at once.
#pragma once

#include <gtk/gtk.h>

#include "app/list_sorting.h"

// Empties a list, and takes it off its view and out of its order as long as
// this object lives: filling it otherwise costs far more than its rows.
class DetachedList {
 public:
  DetachedList(GtkTreeView* view, GtkListStore* store)
      : view_(view), store_(store) {
    gtk_tree_view_set_model(view_, nullptr);
    is_sorted_ = gtk_tree_sortable_get_sort_column_id(GTK_TREE_SORTABLE(store_),
                                                      &sort_column_, &order_);
    if (is_sorted_) SortBy(GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID);
    gtk_list_store_clear(store_);
  }
  ~DetachedList() {
    if (is_sorted_) RestoreOrder();
    gtk_tree_view_set_model(view_, GTK_TREE_MODEL(store_));
  }
  DetachedList(const DetachedList&) = delete;
  DetachedList& operator=(const DetachedList&) = delete;

  // Whether the list is in an order, and in which.
  [[nodiscard]] bool IsSorted() const { return is_sorted_; }
  [[nodiscard]] int SortColumn() const { return sort_column_; }
  [[nodiscard]] bool IsDescending() const {
    return order_ == GTK_SORT_DESCENDING;
  }
  // Says that the rows have been put in in that order.
  void SetRowsAreInOrder() { rows_are_in_order_ = true; }

 private:
  void RestoreOrder() {
    const RowsInOrder in_order(rows_are_in_order_);
    SortBy(sort_column_);
  }

  void SortBy(int column) {
    gtk_tree_sortable_set_sort_column_id(GTK_TREE_SORTABLE(store_), column,
                                         order_);
  }

  GtkTreeView* view_;
  GtkListStore* store_;
  gint sort_column_ = 0;
  GtkSortType order_ = GTK_SORT_ASCENDING;
  bool is_sorted_;
  bool rows_are_in_order_ = false;
};
