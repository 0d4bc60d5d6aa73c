// The handlers of the three site dialogs.
#include "app/site_dialogs.h"

#include "app/busy_pointer.h"
#include "app/list_selection.h"
#include "app/lists.h"
#include "app/notebook_pages.h"
#include "app/permission_choices.h"
#include "app/selection_editing.h"
#include "app/widget_helpers.h"
#include "model/permission_changes.h"

using SASM::SimpleString;

namespace {

// Data of the row callbacks.
struct ChosenState {
  GnomeTCCapplet* panel;
  PermissionState* state;
};

void WriteRow(const List& list, GtkTreeModel* model, GtkTreeIter* row,
              gpointer data) {
  const auto* chosen = static_cast<ChosenState*>(data);
  const SimpleString domain = get_domain_field(chosen->panel, model, row);
  // The row may be left from before the site was removed in another list.
  if (domain.IsEmpty() || !chosen->panel->settings->IsListed(domain)) return;
  // Data that could not be deleted is still in the list when it is refilled.
  (void)SetSiteState(*list.permission, domain, *chosen->state);
}

void domain_privacy_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                       gpointer data) {
  WriteRow(kLists[kCameraList], model, row, data);
}

void domain_storage_choice_cb(GtkTreeModel* model, GtkTreePath*,
                              GtkTreeIter* row, gpointer data) {
  WriteRow(kLists[kStorageList], model, row, data);
}

void domain_p2p_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                   gpointer data) {
  WriteRow(kLists[kNetworkList], model, row, data);
}

// One action on the list of sites, which is written at most once.
void ForEachSelectedSite(GnomeTCCapplet* panel, const char* tree_view_id,
                         GtkTreeSelectionForeachFunc function, gpointer data) {
  const SASM::ListWriteGuard one_action(panel->settings);
  for_each_selected(panel, tree_view_id, function, data);
}

// Where a theme shows the choices as a list, the toolkit uses the combo box
// once more after its choice has been handled, by which the refilled list drops
// it.
void KeepUntilIdle(GtkCellEditable* combo_box) {
  if (!combo_box) return;
  const auto done = [](gpointer) -> gboolean { return FALSE; };
  g_idle_add_full(G_PRIORITY_DEFAULT_IDLE, done, g_object_ref(combo_box),
                  g_object_unref);
}

// Gives every selected site the chosen state, not only the edited one.
void SetSelected(GnomeTCCapplet* panel, const List& list,
                 GtkCellRendererCombo* renderer, GtkTreeIter* choice,
                 GtkTreeSelectionForeachFunc row_callback) {
  GtkTreeModel* choices = nullptr;
  g_object_get(renderer, "model", &choices, nullptr);
  PermissionState state = get_choice_state(choices, choice);
  g_object_unref(choices);
  ChosenState chosen = {panel, &state};
  KeepUntilIdle(
      get_column(panel->builder, PermissionColumn(list).id)->editable_widget);
  const BusyPointer busy(panel);
  ForEachSelectedSite(panel, list.tree_view, row_callback, &chosen);
  update_notebook_page(panel, kCurrentPage);
}

GtkCellRenderer* PermissionRenderer(GnomeTCCapplet* panel, const List& list) {
  return get_renderer(get_column(panel->builder, PermissionColumn(list).id));
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

const List& ListOf(GnomeTCCapplet* panel, GtkCellRenderer* renderer) {
  for (const List& list : kSiteLists) {
    if (PermissionRenderer(panel, list) == renderer) return list;
  }
  g_assert_not_reached();
}

// A key opens the choice in the row with the cursor, selected or not.
void SelectIfNoneIs(GtkTreeView* view, const char* row) {
  GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
  if (gtk_tree_selection_count_selected_rows(selection) > 0) return;
  GtkTreePath* path = gtk_tree_path_new_from_string(row);
  gtk_tree_selection_select_path(selection, path);
  gtk_tree_path_free(path);
}

// By itself the toolkit marks the choice whose text is that of the edited row,
// if there is one. Choosing the marked one is no change: where the selected
// rows differ, they could not all get it.
void MarkSharedState(GtkCellRenderer* renderer, GtkCellEditable* combo_box,
                     const char* row, GnomeTCCapplet* panel) {
  const List& list = ListOf(panel, renderer);
  SelectIfNoneIs(get_tree_view(panel->builder, list.tree_view), row);
  SharedState shared = {.column = PermissionColumn(list).sort_column};
  for_each_selected(panel, list.tree_view, ShareState, &shared);
  // Blocks the renderer, which takes every change as the user's choice.
  g_signal_handlers_block_matched(combo_box, G_SIGNAL_MATCH_DATA, 0, 0, nullptr,
                                  nullptr, renderer);
  set_active_state(GTK_COMBO_BOX(combo_box),
                   static_cast<PermissionState>(shared.state));
  g_signal_handlers_unblock_matched(combo_box, G_SIGNAL_MATCH_DATA, 0, 0,
                                    nullptr, nullptr, renderer);
}

// A combo box whose menu is closed says once more that it is done when the
// program is idle. The next combo box may be open by then, and its renderer,
// which is the same one, would take its own handlers for those of this one.
void BeDoneOnce(GtkCellEditable* combo_box, GtkCellRenderer* renderer) {
  g_signal_handlers_disconnect_matched(combo_box, G_SIGNAL_MATCH_DATA, 0, 0,
                                       nullptr, nullptr, renderer);
}

// By itself the toolkit leaves the closed choice in the cell, with the focus.
void EndWithMenu(GtkCellRenderer* renderer, GtkCellEditable* combo_box,
                 const char*, gpointer) {
  g_signal_connect(combo_box, "remove-widget", G_CALLBACK(BeDoneOnce),
                   renderer);
  GList* menus = gtk_menu_get_for_attach_widget(GTK_WIDGET(combo_box));
  if (!menus) return;  // a theme replaces the menu by a list
  g_signal_connect_object(menus->data, "selection-done",
                          G_CALLBACK(end_editing), combo_box,
                          G_CONNECT_SWAPPED);
}

void CursorChanged(GnomeTCCapplet* panel, const List& list) {
  if (panel->updating) return;
  set_sensitive(panel, list.remove_button, true);
}

void delete_domain_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                      gpointer data) {
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  const SimpleString domain = get_domain_field(panel, model, row);
  if (domain.IsEmpty()) return;
  // A site that could not be removed is still in the refilled list.
  (void)panel->settings->RemoveDomainInformation(domain, true, true);
}

// Removes every selected site, with all its data.
void delete_selected_domains(GnomeTCCapplet* panel, const char* tree_view_id) {
  const BusyPointer busy(panel);
  ForEachSelectedSite(panel, tree_view_id, delete_domain_cb, panel);
  update_notebook_page(panel, kCurrentPage);
}

}  // namespace

void prepare_choices(GnomeTCCapplet* panel) {
  for (const List& list : kSiteLists) {
    GtkCellRenderer* renderer = PermissionRenderer(panel, list);
    g_signal_connect(renderer, "editing-started", G_CALLBACK(MarkSharedState),
                     panel);
    g_signal_connect(renderer, "editing-started", G_CALLBACK(EndWithMenu),
                     nullptr);
  }
}

extern "C" {

G_MODULE_EXPORT void on_site_storage_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kLists[kStorageList]);
}

G_MODULE_EXPORT void on_site_privacy_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kLists[kCameraList]);
}

G_MODULE_EXPORT void on_site_p2p_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  CursorChanged(panel, kLists[kNetworkList]);
}

G_MODULE_EXPORT void on_site_storage_choice_changed(
    GtkCellRendererCombo* renderer, const char*, GtkTreeIter* choice,
    GnomeTCCapplet* panel) {
  SetSelected(panel, kLists[kStorageList], renderer, choice,
              domain_storage_choice_cb);
}

G_MODULE_EXPORT void on_site_privacy_changed(GtkCellRendererCombo* renderer,
                                             const char*, GtkTreeIter* choice,
                                             GnomeTCCapplet* panel) {
  SetSelected(panel, kLists[kCameraList], renderer, choice, domain_privacy_cb);
}

G_MODULE_EXPORT void on_site_p2p_perm_changed(GtkCellRendererCombo* renderer,
                                              const char*, GtkTreeIter* choice,
                                              GnomeTCCapplet* panel) {
  SetSelected(panel, kLists[kNetworkList], renderer, choice, domain_p2p_cb);
}

G_MODULE_EXPORT void on_remove_site_storage_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kLists[kStorageList].tree_view);
}

G_MODULE_EXPORT void on_remove_site_privacy_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kLists[kCameraList].tree_view);
}

G_MODULE_EXPORT void on_remove_site_p2p_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  delete_selected_domains(panel, kLists[kNetworkList].tree_view);
}

}  // extern "C"
