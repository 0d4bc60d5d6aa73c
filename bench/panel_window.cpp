#include "bench/panel_window.h"

#include "app/icons.h"
#include "app/list_presentation.h"
#include "app/list_sizes.h"
#include "app/list_sorting.h"
#include "app/localize_widgets.h"
#include "app/site_dialogs.h"
#include "app/start_up.h"
#include "app/trusted_locations.h"
#include "app/ui_definition.h"
#include "app/widget_helpers.h"
#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "store/setting_keys.h"

namespace {

SASM::SimpleString Master() { return SASM::SettingsManager::MasterDomain(); }

void AppendRow(const SiteList& list, const char* site, std::size_t used) {
  constexpr char kState[] = "Always Ask";
  constexpr char kIcon[] = "icon_corvane_always_ask";
  if (list.has_sizes) {
    gtk_list_store_insert_with_values(list.store, nullptr, G_MAXINT, 0, site, 1,
                                      "4 kB", 2, static_cast<guint>(used), 3,
                                      kState, 4, 2, 5, kIcon, -1);
  } else {
    gtk_list_store_insert_with_values(list.store, nullptr, G_MAXINT, 0, site, 1,
                                      kState, 2, 2, 3, kIcon, -1);
  }
}

}  // namespace

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
  prepare_choices(panel);
  prepare_location_editing(panel);
  panel->updating = false;
  return panel;
}

void OpenStore(GnomeTCCapplet* panel) {
  OpenFreshStore();
  if (!panel->p2p_uplink) {
    panel->p2p_uplink = new SettingBase(SASM::kDisallowP2PUplink, Master());
    panel->trusted_paths = new SettingBase(SASM::kTrustedPaths, Master());
  }
  panel->settings = SettingBase::mSettingsManager;
}

SiteList FindSiteList(GnomeTCCapplet* panel, ListIndex index) {
  const List& list = kLists[index];
  return {FindColumn(list, Content::kUsedSpace) != nullptr,
          get_tree_view(panel->builder, list.tree_view),
          get_list_store(panel->builder, list.store)};
}

void FillBare(const SiteList& list, const SiteHome::Names& sites,
              const std::vector<SiteHome::Paths>& paths) {
  gtk_tree_view_set_model(list.view, nullptr);
  gtk_list_store_clear(list.store);
  for (std::size_t i = 0; i < sites.size(); ++i) {
    AppendRow(list, sites[i].c_str(),
              list.has_sizes ? SizeOfTree(paths[i].storage) : 0);
  }
  gtk_tree_view_set_model(list.view, GTK_TREE_MODEL(list.store));
}

void RunToIdle() {
  while (gtk_events_pending()) gtk_main_iteration();
}
