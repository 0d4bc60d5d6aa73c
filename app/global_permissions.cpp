// The permissions of all sites: the radio buttons of the pages, and the
// buttons that lead to the permissions by site.
#include "app/dialogs.h"
#include "app/notebook_pages.h"
#include "model/storage_setting.h"
#include "store/setting_keys.h"

using SASM::SettingsManager;

namespace {

// Data that could not be deleted shows in the list as used.
void SetGlobalStorage(GnomeTCCapplet* panel, PermissionState state) {
  (void)StorageSetting(SASM::kDefaultStorageLimit,
                       SettingsManager::MasterDomain())
      .setPermissionState(state)
      .commit();
  update_notebook_page(panel, kCurrentPage);
}

// The signal comes as well when the button is switched off by another.
bool IsChosenByUser(GtkToggleButton* button, GnomeTCCapplet* panel) {
  return !panel->updating && gtk_toggle_button_get_active(button);
}

void ShowDialog(GnomeTCCapplet* panel, const char* dialog_id) {
  gtk_window_present(GTK_WINDOW(get_widget(panel->builder, dialog_id)));
}

}  // namespace

extern "C" {

G_MODULE_EXPORT void on_storage_allow_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  SetGlobalStorage(panel, PermissionSetting::kPermissionStateAlwaysAllow);
}

G_MODULE_EXPORT void on_storage_prompt_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  SetGlobalStorage(panel, PermissionSetting::kPermissionStateAlwaysAsk);
}

G_MODULE_EXPORT void on_storage_block_radiobutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (!IsChosenByUser(button, panel)) return;
  if (run_dialog(panel, "deny_all_storage_prompt_dialog")) {
    SetGlobalStorage(panel, PermissionSetting::kPermissionStateAlwaysDeny);
  } else {
    update_notebook_page(panel, kCurrentPage);  // back to the stored choice
  }
}

G_MODULE_EXPORT void on_site_privacy_always_deny_rbutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (panel->updating) return;
  const bool block = gtk_toggle_button_get_active(button);
  SettingBase(SASM::kDefaultCameraAlways, SettingsManager::MasterDomain())
      .setBoolValue(block, SASM::kDefaultCameraAlways);
  const SASM::SDIVector* domains = panel->settings->GetDomains();
  for (unsigned int i = 0; domains && i < domains->count; ++i) {
    PermissionSetting(PermissionSetting::kCameraAndMic, domains->At(i)->name)
        .setState(block ? PermissionSetting::kPermissionStateAlwaysDeny
                        : PermissionSetting::kPermissionStateAlwaysAsk);
  }
  update_notebook_page(panel, kCurrentPage);
}

G_MODULE_EXPORT void on_site_p2p_always_deny_rbutton_toggled(
    GtkToggleButton* button, GnomeTCCapplet* panel) {
  if (panel->updating) return;
  panel->p2p_uplink->setBoolValue(gtk_toggle_button_get_active(button),
                                  SASM::kDisallowP2PUplink);
  update_notebook_page(panel, kCurrentPage);
}

G_MODULE_EXPORT void on_site_storage_button_clicked(GtkButton*,
                                                    GnomeTCCapplet* panel) {
  ShowDialog(panel, "storage_by_site_dialog");
}

G_MODULE_EXPORT void on_site_privacy_button_clicked(GtkButton*,
                                                    GnomeTCCapplet* panel) {
  ShowDialog(panel, "cam_and_mic_by_site_dialog");
}

G_MODULE_EXPORT void on_site_p2p_button_clicked(GtkButton*,
                                                GnomeTCCapplet* panel) {
  ShowDialog(panel, "p2p_by_site_dialog");
}

G_MODULE_EXPORT void on_compat_settings_button_clicked(GtkButton*,
                                                       GnomeTCCapplet* panel) {
  update_notebook_page(panel, kCurrentPage);
  ShowDialog(panel, "compat_settings_dialog");
}

// There is no place to say that the page could not be opened.
G_MODULE_EXPORT void on_check_now_button_clicked(GtkButton*,
                                                 GnomeTCCapplet* panel) {
  const char* address = text_or(panel, 13009, nullptr);
  if (!address) return;
  (void)gtk_show_uri(gdk_screen_get_default(), address,
                     gtk_get_current_event_time(), nullptr);
}

}  // extern "C"
