#include "app/start_up.h"

#include <string>

#include "app/dialogs.h"
#include "app/icons.h"
#include "app/list_presentation.h"
#include "app/list_sizes.h"
#include "app/list_sorting.h"
#include "app/localize_widgets.h"
#include "app/notebook_pages.h"
#include "app/shortcuts.h"
#include "app/site_dialogs.h"
#include "app/trusted_locations.h"
#include "app/ui_definition.h"
#include "store/setting_keys.h"
#include "strings/string_manager.h"

namespace {

struct Link {
  const char* button;
  int string_id;
};

constexpr Link kLinks[] = {
    {"privacy_linkbutton", 13000}, {"private_browsing_linkbutton", 13004},
    {"p2p_linkbutton", 13002},     {"drm_linkbutton", 13003},
    {"compat_linkbutton", 13001},
};

SettingBase* NewMasterSetting(const char* key) {
  return new SettingBase(key, SASM::SettingsManager::MasterDomain());
}

// The first setting object opens the store, which reads the settings from disk.
void open_settings(GnomeTCCapplet* panel) {
  panel->builder = gtk_builder_new();
  panel->updating = false;
  panel->p2p_uplink = NewMasterSetting(SASM::kDisallowP2PUplink);
  panel->trusted_paths = NewMasterSetting(SASM::kTrustedPaths);
  panel->settings = SettingBase::mSettingsManager;
  panel->selected_rows = nullptr;
}

// False after showing an error dialog.
bool load_ui(GnomeTCCapplet* panel) {
  GError* error = nullptr;
  if (gtk_builder_add_from_string(
          panel->builder, gnome_tessary_corvane_properties_ui,
          gnome_tessary_corvane_properties_ui_len, &error) == 0) {
    GtkWidget* dialog = show_error_dialog(
        nullptr, nullptr, "There was an error loading the UI: %s", error);
    g_signal_connect(dialog, "destroy", G_CALLBACK(gtk_main_quit), nullptr);
    return false;
  }
  panel->window = get_widget(panel->builder, "tessary_corvane_dialog");
  return true;
}

// Makes the page of that name current and fills it. Null and unknown names mean
// the first page.
void select_page(GnomeTCCapplet* panel, const char* page_name) {
  GtkNotebook* notebook =
      GTK_NOTEBOOK(get_widget(panel->builder, "tessary_corvane_notebook"));
  int page = kStoragePage;
  if (page_name) {
    const std::string id = std::string(page_name) + "_vbox";
    GObject* box = gtk_builder_get_object(panel->builder, id.c_str());
    // -1 for a box that is no page, which selects the last page.
    if (GTK_IS_WIDGET(box)) {
      page = gtk_notebook_page_num(notebook, GTK_WIDGET(box));
    }
    gtk_notebook_set_current_page(notebook, page);
  }
  // Switching to any other page has filled it.
  if (page == kStoragePage) update_notebook_page(panel, kStoragePage);
}

void set_links(GnomeTCCapplet* panel) {
  for (const Link& link : kLinks) {
    set_link_URL(panel, link.button, link.string_id);
  }
  open_links_quietly();
}

}  // namespace

GnomeTCCapplet* new_panel() {
  auto* panel = g_new0(GnomeTCCapplet, 1);
  panel->strings = new StringManager;
  return panel;
}

bool open_panel(GnomeTCCapplet* panel, const char* page_name) {
  // No language here is written from right to left: where the locale's is, the
  // toolkit would mirror English windows.
  gtk_widget_set_default_direction(GTK_TEXT_DIR_LTR);
  register_permission_icons();
  open_settings(panel);
  if (!load_ui(panel)) return false;
  set_window_icons();
  gtk_builder_connect_signals(panel->builder, panel);
  select_page(panel, page_name);
  prepare_list_sorting(panel);
  prepare_lists(panel);
  prepare_choices(panel);
  prepare_location_editing(panel);
  set_links(panel);
  prepare_shortcuts(panel);
  widen_label_with_dialog(panel, "deny_all_storage_label");
  localize_widgets(panel);
  fix_list_sizes(panel);
  gtk_widget_show(panel->window);
  return true;
}
