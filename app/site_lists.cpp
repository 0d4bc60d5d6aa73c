#include "app/site_lists.h"

#include "app/detached_list.h"
#include "app/notebook_pages.h"
#include "model/storage_setting.h"
#include "store/setting_keys.h"

using SASM::SimpleString;

namespace {

constexpr int kWebsiteColumn = 0;
constexpr int kUsedColumn = 1;
constexpr int kUsedRawColumn = 2;
// The permission as text, as number and as icon stand side by side.
constexpr int kTextBeforeState = -1;
constexpr int kIconAfterState = +1;

// Columns that only the local storage list has.
struct UsedSpace {
  char text[80];
  guint raw_bytes;  // the low 32 bits, by which the column is sorted
};

void MeasureSpace(GnomeTCCapplet* panel, const SimpleString& domain,
                  UsedSpace* used) {
  const std::uint64_t bytes = panel->settings->SizeOfLocalStorage(domain);
  StorageSetting::FormatSpace(static_cast<double>(bytes), used->text,
                              sizeof used->text);
  used->raw_bytes = static_cast<guint>(bytes);
}

void AppendSite(GnomeTCCapplet* panel, GtkListStore* store,
                SitePermissionMode mode, const SimpleString& domain,
                PermissionState state) {
  const int state_column = kSitePermissions[mode].state_column;
  UsedSpace used = {};
  if (mode == kStorageMode) MeasureSpace(panel, domain, &used);
  gtk_list_store_insert_with_values(
      store, nullptr, G_MAXINT,  // at the end
      kWebsiteColumn, domain.c_str(), state_column + kTextBeforeState,
      permission_state_text(panel, state), state_column, state,
      state_column + kIconAfterState, permission_state_icon(state),
      // Of the other lists the row ends here.
      mode == kStorageMode ? kUsedColumn : -1, used.text, kUsedRawColumn,
      used.raw_bytes, -1);
}

void delete_domain_cb(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
                      gpointer data) {
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  const SimpleString domain = get_domain_field(panel, model, row);
  if (domain.IsEmpty()) return;
  // What could not be removed is there when the list is filled again.
  (void)panel->settings->RemoveDomainInformation(domain, true, true);
}

}  // namespace

void fill_site_list(GnomeTCCapplet* panel, SitePermissionMode mode) {
  const SitePermission& list = kSitePermissions[mode];
  set_sensitive(panel, list.remove_button, false);
  GtkListStore* store = get_list_store(panel->builder, list.list_store);
  const DetachedList detached(get_tree_view(panel->builder, list.tree_view),
                              store);
  const bool all_are_blocked =
      mode == kPeerAssistedMode &&
      panel->p2p_uplink->getBoolValue(SASM::kDisallowP2PUplink);
  const SASM::SDIVector* domains = panel->settings->GetDomains();
  for (unsigned int i = 0; domains && i < domains->count; ++i) {
    const SimpleString& domain = domains->At(i)->name;
    AppendSite(panel, store, mode, domain,
               all_are_blocked ? PermissionSetting::kPermissionStateAlwaysDeny
                               : list.read(domain));
  }
}

SimpleString get_domain_field(GnomeTCCapplet*, GtkTreeModel* model,
                              GtkTreeIter* row) {
  return get_text_field(model, row, kWebsiteColumn);
}

void for_each_selected(GnomeTCCapplet* panel, const char* tree_view_id,
                       GtkTreeSelectionForeachFunc function, gpointer data) {
  GtkTreeView* view = get_tree_view(panel->builder, tree_view_id);
  gtk_tree_selection_selected_foreach(gtk_tree_view_get_selection(view),
                                      function, data);
}

void delete_selected_domains(GnomeTCCapplet* panel, const char* tree_view_id) {
  for_each_selected(panel, tree_view_id, delete_domain_cb, panel);
  update_notebook_page(panel, kCurrentPage);
}
