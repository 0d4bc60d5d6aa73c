#include "app/list_place.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

#include "app/selection_editing.h"
#include "app/widget_helpers.h"

namespace {

using Names = std::vector<std::string>;

Names ReadNames(GtkTreeModel* model) {
  Names names;
  GtkTreeIter row;
  for (gboolean more = gtk_tree_model_get_iter_first(model, &row); more;
       more = gtk_tree_model_iter_next(model, &row)) {
    names.emplace_back(get_text_field(model, &row, kNameColumn).c_str());
  }
  return names;
}

// How many of the first `row` names are left, in their order.
int CountKept(const Names& old_names, int row, const Names& new_names) {
  std::size_t kept = 0;
  for (int i = 0; i < row; ++i) {
    if (kept < new_names.size() &&
        new_names[kept] == old_names[static_cast<std::size_t>(i)]) {
      ++kept;
    }
  }
  return static_cast<int>(kept);
}

// A name may be there several times. -1 when it is not.
int FindNearest(const Names& names, const std::string& name, int row) {
  int nearest = -1;
  for (int i = 0; i < static_cast<int>(names.size()); ++i) {
    if (names[static_cast<std::size_t>(i)] == name &&
        (nearest < 0 || std::abs(i - row) < std::abs(nearest - row))) {
      nearest = i;
    }
  }
  return nearest;
}

void MoveCursor(GtkTreeView* view, int row, GtkTreeViewColumn* column) {
  GtkTreePath* path = gtk_tree_path_new_from_indices(row, -1);
  set_cursor_only(view, path, column, CursorUse::kMove);
  gtk_tree_path_free(path);
}

// To the toolkit the row with the cursor is one that has been clicked: a click
// on it would edit it, and select nothing. A selection of no rows forgets that.
void MakeNextClickTheFirst(GtkTreeView* view) {
  GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
  gtk_tree_selection_set_mode(selection, GTK_SELECTION_NONE);
  gtk_tree_selection_set_mode(selection, GTK_SELECTION_MULTIPLE);
}

bool IsPlainKey() {
  GdkModifierType state = {};
  gtk_get_current_event_state(&state);
  return (state & gtk_accelerator_get_default_mod_mask()) == 0;
}

// Moves the cursor where nothing is selected; the toolkit then selects its row
// and moves no further.
gboolean GoOn(GtkTreeView* view, GtkMovementStep step, int count, gpointer) {
  GtkTreePath* path = nullptr;
  GtkTreeViewColumn* column = nullptr;
  gtk_tree_view_get_cursor(view, &path, &column);
  if (!path) return FALSE;
  const int row = gtk_tree_path_get_indices(path)[0] + count;
  gtk_tree_path_free(path);
  const int rows =
      gtk_tree_model_iter_n_children(gtk_tree_view_get_model(view), nullptr);
  if (step == GTK_MOVEMENT_DISPLAY_LINES && IsPlainKey()) {
    MoveCursor(view, std::clamp(row, 0, rows - 1), column);
  }
  return FALSE;
}

void Forget(GtkTreeView* view, gpointer) {
  g_signal_handlers_disconnect_by_func(view, reinterpret_cast<gpointer>(GoOn),
                                       nullptr);
  g_signal_handlers_disconnect_by_func(view, reinterpret_cast<gpointer>(Forget),
                                       nullptr);
}

// Until the cursor moves. By itself the toolkit would first select the row with
// the cursor.
void GoOnFromCursor(GtkTreeView* view) {
  g_signal_connect(view, "move-cursor", G_CALLBACK(GoOn), nullptr);
  g_signal_connect(view, "cursor-changed", G_CALLBACK(Forget), nullptr);
}

}  // namespace

int find_place(const Names& old_names, int row, const Names& new_names) {
  const int last = static_cast<int>(new_names.size()) - 1;
  const int old_count = static_cast<int>(old_names.size());
  const bool are_removed = last + 1 < old_count;
  if (are_removed && CountKept(old_names, old_count, new_names) == last + 1) {
    return std::min(CountKept(old_names, row, new_names), last);
  }
  // In another order. Without removals, only the row's own name counts.
  for (int i = row; i < (are_removed ? old_count : row + 1); ++i) {
    const std::string& name = old_names[static_cast<std::size_t>(i)];
    const int found = FindNearest(new_names, name, row);
    if (found >= 0) return found;
  }
  const std::unordered_set<std::string> known(old_names.begin(),
                                              old_names.end());
  const auto changed = std::ranges::find_if(
      new_names, [&](const auto& text) { return !known.contains(text); });
  return std::min(static_cast<int>(changed - new_names.begin()), last);
}

ListPlace::ListPlace(GnomeTCCapplet* panel, const List& list)
    : view_(get_tree_view(panel->builder, list.tree_view)),
      scrolling_(gtk_tree_view_get_vadjustment(view_)),
      is_shown_(gtk_widget_get_mapped(GTK_WIDGET(view_))) {
  if (!is_shown_) return;
  had_focus_ = HoldsFocus(get_widget(panel->builder, list.remove_button));
  ReadCursor();
  scrolled_ = gtk_adjustment_get_value(scrolling_);
}

ListPlace::~ListPlace() {
  if (!is_shown_) return;
  // Measures the rows, without which there is nothing to scroll.
  GtkRequisition wanted;
  gtk_widget_size_request(GTK_WIDGET(view_), &wanted);
  PutCursorBack();
  ScrollBack();
  // The toolkit by itself leaves the focus nowhere.
  if (had_focus_) gtk_widget_grab_focus(GTK_WIDGET(view_));
}

bool ListPlace::HoldsFocus(GtkWidget* remove_button) const {
  auto* view = GTK_WIDGET(view_);
  GtkWidget* focus =
      gtk_window_get_focus(GTK_WINDOW(gtk_widget_get_toplevel(view)));
  return focus && (focus == view || focus == remove_button ||
                   gtk_widget_is_ancestor(focus, view));
}

void ListPlace::ReadCursor() {
  GtkTreePath* path = nullptr;
  gtk_tree_view_get_cursor(view_, &path, &column_);
  if (!path) return;
  row_ = gtk_tree_path_get_indices(path)[0];
  is_selected_ = gtk_tree_selection_path_is_selected(
      gtk_tree_view_get_selection(view_), path);
  gtk_tree_path_free(path);
  names_ = ReadNames(gtk_tree_view_get_model(view_));
}

void ListPlace::PutCursorBack() const {
  if (names_.empty()) return;  // there was no cursor
  const Names names = ReadNames(gtk_tree_view_get_model(view_));
  if (names.empty()) return;
  const int row = find_place(names_, row_, names);
  PretendToShow(row);
  MoveCursor(view_, row, column_);
  MakeNextClickTheFirst(view_);
  if (is_selected_ && names.size() >= names_.size()) GoOnFromCursor(view_);
}

// The toolkit would later scroll to a cursor that is out of view.
void ListPlace::PretendToShow(int row) const {
  GdkRectangle area;
  GtkTreePath* path = gtk_tree_path_new_from_indices(row, -1);
  gtk_tree_view_get_background_area(view_, path, nullptr, &area);
  gtk_tree_path_free(path);
  scrolling_->value = area.y;
}

// The list's own scroll place is 0 by now, that of the scroll bar is not.
void ListPlace::ScrollBack() const {
  auto* view = GTK_WIDGET(view_);
  GtkAllocation room;
  gtk_widget_get_allocation(view, &room);
  const int furthest = std::max(view->requisition.height - room.height, 0);
  gtk_adjustment_set_value(scrolling_, std::min<double>(scrolled_, furthest));
  gtk_adjustment_value_changed(scrolling_);
}
