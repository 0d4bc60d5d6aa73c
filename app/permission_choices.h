// The rows of the list store permission_settings, which are the choices of
// every combo box of permissions.
#pragma once

#include <gtk/gtk.h>

#include "model/permissions.h"

// The state of a row.
PermissionState get_choice_state(GtkTreeModel* choices, GtkTreeIter* choice);

// Makes the row of that state the active one of a combo box; none for None.
void set_active_state(GtkComboBox* combo_box, PermissionState state);
