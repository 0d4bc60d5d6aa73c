// Keeping the user's place in a list whose rows are replaced.
#pragma once

#include <string>
#include <vector>

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"

// Made before the rows of a list are replaced and destroyed after it, puts
// back where the user was: the scroll place, the cursor, and the focus where it
// was in the list or on its Remove button. Selects nothing: the next Down
// selects the row after a selected one that had the cursor. Does nothing for a
// list that is not on the screen.
class ListPlace {
 public:
  ListPlace(GnomeTCCapplet* panel, const List& list);
  ~ListPlace();
  ListPlace(const ListPlace&) = delete;
  ListPlace& operator=(const ListPlace&) = delete;

 private:
  using Names = std::vector<std::string>;

  [[nodiscard]] bool HoldsFocus(GtkWidget* remove_button) const;
  void ReadCursor();
  void PutCursorBack() const;
  void PretendToShow(int row) const;
  void ScrollBack() const;

  GtkTreeView* view_;
  GtkAdjustment* scrolling_;
  bool is_shown_;
  bool had_focus_ = false;
  GtkTreeViewColumn* column_ = nullptr;
  // The row with the cursor, -1 without one, and the names of all rows.
  int row_ = -1;
  bool is_selected_ = false;
  Names names_;
  double scrolled_ = 0;  // pixels
};

// The row, in the new list, of what is in `row` in the old list: the same name,
// the row after it where it was removed, or the one new name where it was
// changed. Neither list is empty.
int find_place(const std::vector<std::string>& old_names, int row,
               const std::vector<std::string>& new_names);
