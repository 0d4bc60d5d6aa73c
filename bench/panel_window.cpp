#include "bench/panel_window.h"

#include "app/icons.h"
#include "app/list_presentation.h"
#include "app/list_sizes.h"
#include "app/list_sorting.h"
#include "app/localize_widgets.h"
#include "app/start_up.h"
#include "app/ui_definition.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "store/setting_keys.h"

GnomeTCCapplet* StartWithoutStore(int* argc, char*** argv) {
  Check(gtk_init_check(argc, argv), "gtk_init_check");
  GnomeTCCapplet* panel = new_panel();
  panel->updating = true;
  register_permission_icons();
  panel->builder = gtk_builder_new();
  Check(gtk_builder_add_from_string(
            panel->builder, gnome_tessary_corvane_properties_ui,
            gnome_tessary_corvane_properties_ui_len, nullptr),
        "gtk_builder_add_from_string");
  panel->window = get_widget(panel->builder, "tessary_corvane_dialog");
  set_window_icons();
  gtk_builder_connect_signals(panel->builder, panel);
  prepare_list_sorting(panel);
  prepare_lists(panel);
  localize_widgets(panel);
  fix_list_sizes(panel);
  gtk_widget_show(panel->window);
  return panel;
}

void OpenStore(GnomeTCCapplet* panel) {
  OpenFreshStore();
  if (!panel->p2p_uplink) {
    panel->p2p_uplink = new SettingBase(SASM::kDisallowP2PUplink,
                                        SASM::SettingsManager::MasterDomain());
  }
  panel->settings = SettingBase::mSettingsManager;
}

void RunToIdle() {
  while (gtk_events_pending()) gtk_main_iteration();
}
