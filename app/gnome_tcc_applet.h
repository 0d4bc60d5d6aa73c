// The state of the application.
#pragma once

#include <gtk/gtk.h>

#include "model/setting_base.h"
#include "strings/localized_string_manager.h"

// A row index gathered while trusted locations are removed.
struct SelectedRow {
  guint32 index;
  SelectedRow* next;
};

// The one record that every UI routine and every signal handler receives.
// Allocated zero-filled at start and kept, with all it points to, until the
// process ends. Only the GTK thread touches it.
typedef struct _GnomeTCCapplet {  // NOLINT(bugprone-reserved-identifier)
  // Every object of the UI definition, by id.
  GtkBuilder* builder;
  // The main window.
  GtkWidget* window;
  // Every text comes from here.
  LocalizedStringManager* strings;
  // True while update_notebook_page sets controls; their handlers then do
  // nothing.
  bool updating;
  // Two settings of the master domain.
  SettingBase* p2p_uplink;
  SettingBase* trusted_paths;
  // SettingBase::mSettingsManager.
  SASM::SettingsManager* settings;
  // Empty but for the time of one removal.
  SelectedRow* selected_rows;
  // The list for which the new-site dialog was opened last: a ListIndex.
  gint32 new_site_mode;
} GnomeTCCapplet;

// The global settings, borrowed from the settings manager.
inline const SASM::SettingsDictionary* master_settings(GnomeTCCapplet* panel) {
  return panel->settings->EnsureSettingsAreLoadedForDomain(
      SASM::SettingsManager::MasterDomain());
}
