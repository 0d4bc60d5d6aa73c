// Filling a list at once.
#pragma once

#include <gtk/gtk.h>

// Empties a list and takes it off its view as long as this object lives:
// filling it otherwise costs far more than its rows. A sorted list stays
// sorted; give it whole rows, so that each is put in its place once.
class DetachedList {
 public:
  DetachedList(GtkTreeView* view, GtkListStore* store)
      : view_(view), store_(store) {
    gtk_tree_view_set_model(view_, nullptr);
    gtk_list_store_clear(store_);
  }
  ~DetachedList() { gtk_tree_view_set_model(view_, GTK_TREE_MODEL(store_)); }
  DetachedList(const DetachedList&) = delete;
  DetachedList& operator=(const DetachedList&) = delete;

 private:
  GtkTreeView* view_;
  GtkListStore* store_;
};
