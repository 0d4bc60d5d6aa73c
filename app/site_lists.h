// The three lists of web sites, each with one permission.
#pragma once

#include "app/widget_helpers.h"

// The kind of permission a list shows; the index of its row in
// kSitePermissions.
enum SitePermissionMode : int {
  kCameraAndMicMode = 0,
  kStorageMode = 1,
  kPeerAssistedMode = 2,
};

// Everything in which the three differ.
struct SitePermission {
  const char* dialog;
  const char* tree_view;
  const char* list_store;
  const char* add_button;
  const char* remove_button;
  // What asks for a new site.
  int new_site_title;
  int new_site_label;
  // Column of the list store.
  int state_column;
  // Shows the permission, and the combo box when it is edited.
  const char* renderer;
  // The stored permission of a site.
  PermissionState (*read)(const SASM::SimpleString& domain);
  void (*write)(const SASM::SimpleString& domain, PermissionState state);
  // What a new site is offered: where there is one, the permission of all.
  PermissionState (*preset)();
};

// By SitePermissionMode.
extern const SitePermission kSitePermissions[3];

// Refills the list with every known site, in the order of the settings
// manager's list unless the user has sorted it, and makes its Remove button
// insensitive. Selection and cursor are lost with the old rows.
void fill_site_list(GnomeTCCapplet* panel, SitePermissionMode mode);

// Lets the combo box of a row begin with what all selected rows have, if it is
// the same.
void prepare_choices(GnomeTCCapplet* panel);

// The state of a row of the list store permission_settings.
PermissionState get_choice_state(GtkTreeModel* choices, GtkTreeIter* choice);
// Makes the row of that state the active one of a combo box of such rows; none
// for None.
void set_active_state(GtkComboBox* combo_box, PermissionState state);

// A copy of the row's domain.
SASM::SimpleString get_domain_field(GnomeTCCapplet* panel, GtkTreeModel* model,
                                    GtkTreeIter* row);

// Calls the function for each selected row of that tree view.
void for_each_selected(GnomeTCCapplet* panel, const char* tree_view_id,
                       GtkTreeSelectionForeachFunc function, gpointer data);

// Removes every selected site, with all its data.
void delete_selected_domains(GnomeTCCapplet* panel, const char* tree_view_id);
