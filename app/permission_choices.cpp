#include "app/permission_choices.h"

PermissionState get_choice_state(GtkTreeModel* choices, GtkTreeIter* choice) {
  constexpr int kStateColumn = 2;
  int state = kPermissionStateNone;
  gtk_tree_model_get(choices, choice, kStateColumn, &state, -1);
  return static_cast<PermissionState>(state);
}

// The rows are in the order of the states. States begin at 1.
void set_active_state(GtkComboBox* combo_box, PermissionState state) {
  gtk_combo_box_set_active(combo_box, state - 1);
}
