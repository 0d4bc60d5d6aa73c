#include "bench/panel_window.h"

#include <utility>

#include "app/icons.h"
#include "app/list_presentation.h"
#include "app/list_sorting.h"
#include "app/localize_widgets.h"
#include "app/start_up.h"
#include "bench/harness.h"
#include "store/setting_keys.h"

GnomeTCCapplet* StartWithoutStore(int* argc, char*** argv) {
  Check(gtk_init_check(argc, argv), "gtk_init_check");
  GnomeTCCapplet* panel = new_panel();
  panel->updating = true;
  register_permission_icons();
  panel->builder = gtk_builder_new();
  Check(load_ui(panel), "load_ui");
  set_window_icons();
  connect_signals(panel);
  prepare_list_sorting(panel);
  prepare_lists(panel);
  set_links(panel);
  localize_widgets(panel);
  set_accessible_names(panel);
  gtk_widget_show(panel->window);
  return panel;
}

void OpenStore(GnomeTCCapplet* panel) {
  delete std::exchange(SettingBase::mSettingsManager, nullptr);
  if (!panel->p2p_uplink) {
    panel->p2p_uplink = new SettingBase(SASM::kDisallowP2PUplink,
                                        SASM::SettingsManager::MasterDomain());
  }
  (void)SettingBase("", "");
  panel->settings = SettingBase::mSettingsManager;
}

void RunToIdle() {
  while (gtk_events_pending()) gtk_main_iteration();
}
