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

// Everything in which the three differ, beside their permissions.
struct SitePermission {
  PermissionKind permission;
  const char* dialog;
  const char* tree_view;
  const char* list_store;
  const char* add_button;
  const char* remove_button;
  // Column of the list store.
  int state_column;
  // Shows the permission, and the combo box when it is edited.
  const char* renderer;
};

// By SitePermissionMode.
inline constexpr SitePermission kSitePermissions[] = {
    {kCamera, "cam_and_mic_by_site_dialog", "site_privacy_treeview",
     "site_privacy_list", "add_site_privacy_setting_button",
     "remove_site_privacy_setting_button", 2,
     "site_privacy_permission_settings_combo"},
    {kStorage, "storage_by_site_dialog", "site_storage_treeview",
     "site_storage_list", "add_site_storage_setting_button",
     "remove_site_storage_setting_button", 4,
     "cellrenderer_storage_permission_settings_combo"},
    {kNetwork, "p2p_by_site_dialog", "site_p2p_treeview", "site_p2p_list",
     "add_site_p2p_setting_button", "remove_site_p2p_setting_button", 2,
     "cellrenderer_p2p_permission_settings_combo"},
};

// The global settings, borrowed from the settings manager.
const SASM::SettingsDictionary* master_settings(GnomeTCCapplet* panel);

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
