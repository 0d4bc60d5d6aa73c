#include "app/notebook_pages.h"

#include "app/site_lists.h"
#include "app/trusted_locations.h"
#include "app/widget_helpers.h"

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

struct RadioButton {
  PermissionKind permission;
  PermissionState state;
  const char* id;
};

// The choices for all sites.
constexpr RadioButton kRadioButtons[] = {
    {kStorage, kPermissionStateAlwaysAllow, "storage_allow_radiobutton"},
    {kStorage, kPermissionStateAlwaysAsk, "storage_prompt_radiobutton"},
    {kStorage, kPermissionStateAlwaysDeny, "storage_block_radiobutton"},
    {kCamera, kPermissionStateAlwaysAsk, "site_privacy_always_ask_rbutton"},
    {kCamera, kPermissionStateAlwaysDeny, "site_privacy_always_deny_rbutton"},
    {kNetwork, kPermissionStateAlwaysAsk, "site_p2p_always_ask_rbutton"},
    {kNetwork, kPermissionStateAlwaysDeny, "site_p2p_always_deny_rbutton"},
};

void UpdatePermissionPage(GnomeTCCapplet* panel, SitePermissionMode mode) {
  const PermissionKind permission = kSitePermissions[mode].permission;
  const PermissionState state =
      GlobalState(kPermissions[permission], master_settings(panel));
  for (const RadioButton& button : kRadioButtons) {
    if (button.permission != permission || button.state != state) continue;
    set_toggle_active(panel, button.id, true);
  }
  fill_site_list(panel, mode);
}

void UpdatePlaybackPage(GnomeTCCapplet* panel) {
  const bool are_blocked =
      IsBlockedEverywhere(kPermissions[kNetwork], master_settings(panel));
  for (const char* widget : {"add_site_p2p_setting_button", "site_p2p_treeview",
                             "site_p2p_button"}) {
    set_sensitive(panel, widget, !are_blocked);
  }
  UpdatePermissionPage(panel, kPeerAssistedMode);
}

}  // namespace

void update_notebook_page(GnomeTCCapplet* panel, int page) {
  const UpdatingGuard guard(panel);
  if (page < 0) {
    page = gtk_notebook_get_current_page(
        GTK_NOTEBOOK(get_widget(panel->builder, "tessary_corvane_notebook")));
  }
  if (page == kStoragePage) UpdatePermissionPage(panel, kStorageMode);
  if (page == kPrivacyPage) UpdatePermissionPage(panel, kCameraAndMicMode);
  if (page == kPlaybackPage) UpdatePlaybackPage(panel);
  fill_trusted_locations(panel);
}

extern "C" G_MODULE_EXPORT void on_tessary_corvane_notebook_switch_page(
    GtkNotebook*, gpointer, guint page, GnomeTCCapplet* panel) {
  update_notebook_page(panel, static_cast<int>(page));
}
