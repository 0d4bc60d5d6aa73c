// Rows of the list store permission_settings: the choices in every combo box
// of permissions.
#pragma once

#include <gtk/gtk.h>

#include "model/permissions.h"

// The state of a row.
PermissionState get_choice_state(GtkTreeModel* choices, GtkTreeIter* choice);

// Makes the row of that state active in a combo box; for None, no row.
void set_active_state(GtkComboBox* combo_box, PermissionState state);
