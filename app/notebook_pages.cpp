#include "app/notebook_pages.h"

#include "app/site_lists.h"
#include "app/trusted_locations.h"
#include "app/widget_helpers.h"
#include "store/setting_keys.h"

namespace {

// Sets the flag for as long as it lives.
class UpdatingGuard {
 public:
  explicit UpdatingGuard(GnomeTCCapplet* panel)
      : panel_(panel), was_updating_(panel->updating) {
    panel_->updating = true;
  }
  ~UpdatingGuard() { panel_->updating = was_updating_; }
  UpdatingGuard(const UpdatingGuard&) = delete;
  UpdatingGuard& operator=(const UpdatingGuard&) = delete;

 private:
  GnomeTCCapplet* panel_;
  bool was_updating_;
};

const char* StorageButtonOf(PermissionState state) {
  switch (state) {
    case PermissionSetting::kPermissionStateAlwaysDeny:
      return "storage_block_radiobutton";
    case PermissionSetting::kPermissionStateAlwaysAsk:
      return "storage_prompt_radiobutton";
    case PermissionSetting::kPermissionStateAlwaysAllow:
      return "storage_allow_radiobutton";
    case PermissionSetting::kPermissionStateNone:
      break;
  }
  return nullptr;
}

void UpdateStoragePage(GnomeTCCapplet* panel) {
  const char* button = StorageButtonOf(kSitePermissions[kStorageMode].preset());
  if (button) set_toggle_active(panel, button, true);
  fill_site_list(panel, kStorageMode);
}

void UpdatePrivacyPage(GnomeTCCapplet* panel) {
  const bool deny = kSitePermissions[kCameraAndMicMode].preset() ==
                    PermissionSetting::kPermissionStateAlwaysDeny;
  set_toggle_active(panel,
                    deny ? "site_privacy_always_deny_rbutton"
                         : "site_privacy_always_ask_rbutton",
                    true);
  fill_site_list(panel, kCameraAndMicMode);
}

void UpdatePlaybackPage(GnomeTCCapplet* panel) {
  const bool deny = panel->p2p_uplink->getBoolValue(SASM::kDisallowP2PUplink);
  set_toggle_active(panel, "site_p2p_always_ask_rbutton", !deny);
  set_toggle_active(panel, "site_p2p_always_deny_rbutton", deny);
  set_sensitive(panel, "add_site_p2p_setting_button", !deny);
  set_sensitive(panel, "site_p2p_treeview", !deny);
  set_sensitive(panel, "site_p2p_button", !deny);
  fill_site_list(panel, kPeerAssistedMode);
}

}  // namespace

void update_notebook_page(GnomeTCCapplet* panel, int page) {
  const UpdatingGuard guard(panel);
  if (page < 0) {
    page = gtk_notebook_get_current_page(
        GTK_NOTEBOOK(get_widget(panel->builder, "tessary_corvane_notebook")));
  }
  if (page == kStoragePage) UpdateStoragePage(panel);
  if (page == kPrivacyPage) UpdatePrivacyPage(panel);
  if (page == kPlaybackPage) UpdatePlaybackPage(panel);
  fill_trusted_locations(panel);
}

extern "C" G_MODULE_EXPORT void on_tessary_corvane_notebook_switch_page(
    GtkNotebook*, gpointer, guint page, GnomeTCCapplet* panel) {
  update_notebook_page(panel, static_cast<int>(page));
}
