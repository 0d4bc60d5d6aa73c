#include "app/notebook_pages.h"

#include "app/busy_pointer.h"
#include "app/list_contents.h"
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

// The radio buttons that show the permissions of all sites.
constexpr RadioButton kRadioButtons[] = {
    {kStorage, kPermissionStateAlwaysAllow, "storage_allow_radiobutton"},
    {kStorage, kPermissionStateAlwaysAsk, "storage_prompt_radiobutton"},
    {kStorage, kPermissionStateAlwaysDeny, "storage_block_radiobutton"},
    {kCamera, kPermissionStateAlwaysAsk, "site_privacy_always_ask_rbutton"},
    {kCamera, kPermissionStateAlwaysDeny, "site_privacy_always_deny_rbutton"},
    {kNetwork, kPermissionStateAlwaysAsk, "site_p2p_always_ask_rbutton"},
    {kNetwork, kPermissionStateAlwaysDeny, "site_p2p_always_deny_rbutton"},
};

void UpdatePermissionPage(GnomeTCCapplet* panel, const List& list) {
  const PermissionState state =
      GlobalState(*list.permission, master_settings(panel));
  for (const RadioButton& button : kRadioButtons) {
    if (button.permission == list.permission->kind && button.state == state) {
      set_toggle_active(panel, button.id, true);
    }
  }
  fill_list(panel, list);
}

// While all sites are blocked, there is nothing to set for single ones.
void UpdatePlaybackPage(GnomeTCCapplet* panel) {
  const List& list = kLists[kNetworkList];
  const bool are_blocked =
      panel->p2p_uplink->getBoolValue(list.permission->global_key);
  for (const char* widget :
       {list.add_button, list.tree_view, list.page_button}) {
    set_sensitive(panel, widget, !are_blocked);
  }
  UpdatePermissionPage(panel, list);
}

}  // namespace

void update_notebook_page(GnomeTCCapplet* panel, int page) {
  const UpdatingGuard guard(panel);
  if (page < 0) {
    page = gtk_notebook_get_current_page(
        GTK_NOTEBOOK(get_widget(panel->builder, "tessary_corvane_notebook")));
  }
  if (page == kStoragePage) UpdatePermissionPage(panel, kLists[kStorageList]);
  if (page == kPrivacyPage) UpdatePermissionPage(panel, kLists[kCameraList]);
  if (page == kPlaybackPage) UpdatePlaybackPage(panel);
  fill_list(panel, kLists[kLocationList]);
}

extern "C" G_MODULE_EXPORT void on_tessary_corvane_notebook_switch_page(
    GtkNotebook*, gpointer, guint page, GnomeTCCapplet* panel) {
  const BusyPointer busy(panel);
  update_notebook_page(panel, static_cast<int>(page));
}
