// The handlers of the three site dialogs.
#include "app/notebook_pages.h"
#include "app/site_lists.h"

using SASM::SimpleString;

namespace {

// What the row callbacks receive.
struct ChosenState {
  GnomeTCCapplet* panel;
  PermissionState* state;
};

void WriteRow(SitePermissionMode mode, GtkTreeModel* model, GtkTreeIter* row,
              gpointer data) {
  const auto* chosen = static_cast<ChosenState*>(data);
  const SimpleString domain = get_domain_field(chosen->panel, model, row);
  if (!domain.IsEmpty()) kSitePermissions[mode].write(domain, *chosen->state);
}

void domain_privacy_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                       gpointer data) {
  WriteRow(kCameraAndMicMode, model, row, data);
}

void domain_storage_choice_cb(GtkTreeModel* model, GtkTreePath*,
                              GtkTreeIter* row, gpointer data) {
  WriteRow(kStorageMode, model, row, data);
}

void domain_p2p_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                   gpointer data) {
  WriteRow(kPeerAssistedMode, model, row, data);
}

// Gives the chosen state to every selected site, not only to the edited one.
void SetSelected(GnomeTCCapplet* panel, SitePermissionMode mode,
                 GtkCellRendererCombo* renderer, GtkTreeIter* choice,
                 GtkTreeSelectionForeachFunc row_callback) {
  GtkTreeModel* choices = nullptr;
  g_object_get(renderer, "model", &choices, nullptr);
  PermissionState state = get_choice_state(choices, choice);
  g_object_unref(choices);
  ChosenState chosen = {panel, &state};
  for_each_selected(panel, kSitePermissions[mode].tree_view, row_callback,
                    &chosen);
  update_notebook_page(panel, kCurrentPage);
}

void CursorChanged(GnomeTCCapplet* panel, SitePermissionMode mode) {
  if (panel->updating) return;
  set_sensitive(panel, kSitePermissions[mode].remove_button, true);
}

}  // namespace

extern "C" {

G_MODULE_EXPORT void on_site_storage_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kStorageMode);
}

G_MODULE_EXPORT void on_site_privacy_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kCameraAndMicMode);
}

G_MODULE_EXPORT void on_site_p2p_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kPeerAssistedMode);
}

G_MODULE_EXPORT void on_site_storage_choice_changed(
    GtkCellRendererCombo* renderer, const char*, GtkTreeIter* choice,
    GnomeTCCapplet* panel) {
  SetSelected(panel, kStorageMode, renderer, choice, domain_storage_choice_cb);
}

G_MODULE_EXPORT void on_site_privacy_changed(GtkCellRendererCombo* renderer,
                                             const char*, GtkTreeIter* choice,
                                             GnomeTCCapplet* panel) {
  SetSelected(panel, kCameraAndMicMode, renderer, choice, domain_privacy_cb);
}

G_MODULE_EXPORT void on_site_p2p_perm_changed(GtkCellRendererCombo* renderer,
                                              const char*, GtkTreeIter* choice,
                                              GnomeTCCapplet* panel) {
  SetSelected(panel, kPeerAssistedMode, renderer, choice, domain_p2p_cb);
}

G_MODULE_EXPORT void on_remove_site_storage_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kSitePermissions[kStorageMode].tree_view);
}

G_MODULE_EXPORT void on_remove_site_privacy_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kSitePermissions[kCameraAndMicMode].tree_view);
}

G_MODULE_EXPORT void on_remove_site_p2p_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kSitePermissions[kPeerAssistedMode].tree_view);
}

}  // extern "C"
