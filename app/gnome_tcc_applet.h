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
// Allocated zero-filled at the start; it and everything it points to live until
// the process ends. Only the GTK thread uses it.
typedef struct _GnomeTCCapplet {  // NOLINT(bugprone-reserved-identifier)
  // Every object of the UI definition, by id.
  GtkBuilder* builder;
  // The main window.
  GtkWidget* window;
  // The source of all texts.
  LocalizedStringManager* strings;
  // True while update_notebook_page sets controls; their handlers then do
  // nothing.
  bool updating;
  // Settings of the master domain.
  SettingBase* p2p_uplink;
  SettingBase* trusted_paths;
  // SettingBase::mSettingsManager.
  SASM::SettingsManager* settings;
  // Empty except during a removal.
  SelectedRow* selected_rows;
  // A ListIndex: the list for which the new-site dialog was last opened.
  gint32 new_site_mode;
} GnomeTCCapplet;

// The global settings, borrowed from the settings manager.
inline const SASM::SettingsDictionary* master_settings(GnomeTCCapplet* panel) {
  return panel->settings->EnsureSettingsAreLoadedForDomain(
      SASM::SettingsManager::MasterDomain());
}
