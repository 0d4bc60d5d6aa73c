// Deletes all site data and the licence files.
#include <string>

#include "app/busy_pointer.h"
#include "app/dialogs.h"
#include "app/notebook_pages.h"
#include "platform/drm_license_manager.h"
#include "platform/linux_file_manager.h"

namespace {

// With the name of what is still there, so that the titles differ.
void ShowUnableToDelete(GnomeTCCapplet* panel, int message_id, int name_id) {
  constexpr char kFallback[] = "Unable to delete";
  const std::string title = std::string(text_or(panel, 11500, kFallback)) +
                            " – " + text_or(panel, name_id, "");
  show_error_dialog(GTK_WINDOW(panel->window), title.c_str(),
                    text_or(panel, message_id, kFallback), nullptr);
}

void DeleteLicences(GnomeTCCapplet* panel) {
  LinuxFileManager file_manager;
  SASM::DRMLicenseManager licences(&file_manager);
  if (!licences.Reset()) ShowUnableToDelete(panel, 11502, 41100);
}

bool RemoveSiteData(GnomeTCCapplet* panel) {
  const BusyPointer busy;
  const bool sites_removed =
      panel->settings->RemoveAllSettingsAndOrLocalStorage(true, true);
  return panel->settings->RemoveAssetCache() && sites_removed;
}

void DeleteSiteData(GnomeTCCapplet* panel) {
  if (!RemoveSiteData(panel)) ShowUnableToDelete(panel, 11501, 21000);
}

}  // namespace

extern "C" G_MODULE_EXPORT void on_clear_site_storage_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  set_toggle_active(panel, "clear_site_data_checkbutton", true);
  set_toggle_active(panel, "clear_drm_checkbutton", false);
  if (!run_dialog(panel, "clear_site_data_dialog")) return;
  if (is_toggle_active(panel, "clear_drm_checkbutton")) DeleteLicences(panel);
  if (is_toggle_active(panel, "clear_site_data_checkbutton")) {
    DeleteSiteData(panel);
  }
  update_notebook_page(panel, kCurrentPage);
}

extern "C" G_MODULE_EXPORT void on_reset_drm_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  if (run_dialog(panel, "reset_drm_prompt_dialog")) DeleteLicences(panel);
}
