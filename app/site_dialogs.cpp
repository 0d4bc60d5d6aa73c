// The handlers of the three site dialogs.
#include "app/notebook_pages.h"
#include "app/site_lists.h"
#include "model/permission_changes.h"

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
  if (domain.IsEmpty()) return;
  // Data that could not be deleted is still in the list when it is refilled.
  (void)SetSiteState(kPermissions[kSitePermissions[mode].permission], domain,
                     *chosen->state);
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

// The state that all selected rows have; None where they differ.
struct SharedState {
  int column;
  bool has_rows = false;
  int state = kPermissionStateNone;
};

void ShareState(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                gpointer data) {
  auto* shared = static_cast<SharedState*>(data);
  int state = kPermissionStateNone;
  gtk_tree_model_get(model, row, shared->column, &state, -1);
  const bool differs = shared->has_rows && state != shared->state;
  shared->state = differs ? kPermissionStateNone : state;
  shared->has_rows = true;
}

// The toolkit marks the choice that reads as the edited row does, if any: then
// what lies under the pointer may not be what the row has, and where the rows
// differ the marked choice, which is no change, could not be given to all.
template <SitePermissionMode mode>
void MarkSharedState(GtkCellRenderer* renderer, GtkCellEditable* combo_box,
                     const char*, GnomeTCCapplet* panel) {
  const SitePermission& list = kSitePermissions[mode];
  SharedState shared = {.column = list.state_column};
  for_each_selected(panel, list.tree_view, ShareState, &shared);
  // To the renderer every change is a choice of the user.
  g_signal_handlers_block_matched(combo_box, G_SIGNAL_MATCH_DATA, 0, 0, nullptr,
                                  nullptr, renderer);
  set_active_state(GTK_COMBO_BOX(combo_box),
                   static_cast<PermissionState>(shared.state));
  g_signal_handlers_unblock_matched(combo_box, G_SIGNAL_MATCH_DATA, 0, 0,
                                    nullptr, nullptr, renderer);
}

template <SitePermissionMode mode>
void PrepareChoice(GnomeTCCapplet* panel) {
  g_signal_connect(get_object(panel->builder, kSitePermissions[mode].renderer,
                              GTK_TYPE_CELL_RENDERER_COMBO),
                   "editing-started", G_CALLBACK(MarkSharedState<mode>), panel);
}

void CursorChanged(GnomeTCCapplet* panel, SitePermissionMode mode) {
  if (panel->updating) return;
  set_sensitive(panel, kSitePermissions[mode].remove_button, true);
}

}  // namespace

void prepare_choices(GnomeTCCapplet* panel) {
  PrepareChoice<kCameraAndMicMode>(panel);
  PrepareChoice<kStorageMode>(panel);
  PrepareChoice<kPeerAssistedMode>(panel);
}

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
