// The radio buttons on the pages, which set a permission for all sites, and
// the buttons that open dialogs.
#include "app/busy_pointer.h"
#include "app/dialogs.h"
#include "app/lists.h"
#include "app/notebook_pages.h"
#include "model/permission_changes.h"

namespace {

void SetForAllSites(GnomeTCCapplet* panel, PermissionKind permission,
                    PermissionState state) {
  const BusyPointer busy(panel);
  // Data that could not be deleted is still in the list when it is refilled.
  (void)SetGlobalState(kPermissions[permission], state);
  update_notebook_page(panel, kCurrentPage);
}

// The signal also comes when another button switches this one off.
bool IsChosenByUser(GtkToggleButton* button, GnomeTCCapplet* panel) {
  return !panel->updating && gtk_toggle_button_get_active(button);
}

void FocusActive(GtkToggleButton* one_of_group) {
  for (GSList* node =
           gtk_radio_button_get_group(GTK_RADIO_BUTTON(one_of_group));
       node; node = node->next) {
    if (!gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(node->data))) continue;
    gtk_widget_grab_focus(GTK_WIDGET(node->data));
  }
}

// The state chosen by a button that blocks all sites.
PermissionState StateOfSwitch(GtkToggleButton* button) {
  return gtk_toggle_button_get_active(button) ? kPermissionStateAlwaysDeny
                                              : kPermissionStateAlwaysAsk;
}

void ShowDialog(GnomeTCCapplet* panel, const List& list) {
  gtk_window_present(GTK_WINDOW(get_widget(panel->builder, list.dialog)));
}

}  // namespace

extern "C" {

G_MODULE_EXPORT void on_storage_allow_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  SetForAllSites(panel, kStorage, kPermissionStateAlwaysAllow);
}

G_MODULE_EXPORT void on_storage_prompt_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  SetForAllSites(panel, kStorage, kPermissionStateAlwaysAsk);
}

G_MODULE_EXPORT void on_storage_block_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  if (run_dialog(panel, "deny_all_storage_prompt_dialog")) {
    SetForAllSites(panel, kStorage, kPermissionStateAlwaysDeny);
  } else {
    update_notebook_page(panel, kCurrentPage);  // back to the stored choice
    FocusActive(button);
  }
}

G_MODULE_EXPORT void on_site_privacy_always_deny_rbutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (panel->updating) return;
  SetForAllSites(panel, kCamera, StateOfSwitch(button));
}

G_MODULE_EXPORT void on_site_p2p_always_deny_rbutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (panel->updating) return;
  SetForAllSites(panel, kNetwork, StateOfSwitch(button));
}

G_MODULE_EXPORT void on_site_storage_button_clicked(GtkButton*,
                                                    GnomeTCCapplet* panel) {
  ShowDialog(panel, kLists[kStorageList]);
}

G_MODULE_EXPORT void on_site_privacy_button_clicked(GtkButton*,
                                                    GnomeTCCapplet* panel) {
  ShowDialog(panel, kLists[kCameraList]);
}

G_MODULE_EXPORT void on_site_p2p_button_clicked(GtkButton*,
                                                GnomeTCCapplet* panel) {
  ShowDialog(panel, kLists[kNetworkList]);
}

G_MODULE_EXPORT void on_compat_settings_button_clicked(GtkButton*,
                                                       GnomeTCCapplet* panel) {
  update_notebook_page(panel, kCurrentPage);
  ShowDialog(panel, kLists[kLocationList]);
}

G_MODULE_EXPORT void on_check_now_button_clicked(GtkButton*,
                                                 GnomeTCCapplet* panel) {
  const char* address = text_or(panel, 13009, nullptr);
  if (address) open_address(address);
}

}  // extern "C"
