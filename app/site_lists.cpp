#include "app/site_lists.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "app/detached_list.h"
#include "app/list_sorting.h"
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
  char text[StorageSetting::kSpaceTextSize];
  guint raw_bytes;  // the low 32 bits, by which the column is sorted
};

struct SiteRow {
  const char* website;
  PermissionState state;
  UsedSpace used;
};

// What a row is sorted by: the one or the other.
struct SortKey {
  guint number;
  std::string text;
  const SiteRow* row;
};

void MeasureSpace(const SimpleString& domain, UsedSpace* used) {
  StorageSetting setting(SASM::kStorageLimit, domain);
  setting.formatSpaceUsed(used->text, sizeof used->text);
  used->raw_bytes =
      static_cast<guint>(static_cast<guint64>(setting.spaceUsed()));
}

std::vector<SiteRow> ReadRows(GnomeTCCapplet* panel, SitePermissionMode mode) {
  const Permission& permission =
      kPermissions[kSitePermissions[mode].permission];
  const SASM::SDIVector* domains = panel->settings->GetDomains();
  if (!domains) return {};
  const SASM::SettingsDictionary* master = master_settings(panel);
  const bool are_blocked = IsBlockedEverywhere(permission, master);
  std::vector<SiteRow> rows(domains->count);
  for (unsigned int i = 0; i < domains->count; ++i) {
    const SimpleString& domain = domains->At(i)->name;
    rows[i].website = domain.c_str();
    // Spares reading the files of sites whose own settings do not count.
    const SASM::SettingsDictionary* site =
        are_blocked ? nullptr
                    : panel->settings->EnsureSettingsAreLoadedForDomain(domain);
    rows[i].state = EffectiveState(permission, master, site);
    if (mode == kStorageMode) MeasureSpace(domain, &rows[i].used);
  }
  return rows;
}

guint NumberIn(const SiteRow& row, SitePermissionMode mode, int column) {
  const bool is_state = column == kSitePermissions[mode].state_column;
  return is_state ? static_cast<guint>(row.state) : row.used.raw_bytes;
}

SortKey KeyOf(const SiteRow& row, SitePermissionMode mode, int column) {
  if (column == kWebsiteColumn) {
    return {0, reverse_domain_components(row.website), &row};
  }
  return {NumberIn(row, mode, column), "", &row};
}

// As the list would sort them itself by its sort functions, which take their
// texts apart anew at every comparison.
std::vector<SortKey> Sorted(const std::vector<SiteRow>& rows,
                            SitePermissionMode mode, int column,
                            GtkSortType order) {
  std::vector<SortKey> keys;
  keys.reserve(rows.size());
  for (const SiteRow& row : rows) keys.push_back(KeyOf(row, mode, column));
  const bool descending = order == GTK_SORT_DESCENDING;
  std::ranges::stable_sort(keys, [=](const SortKey& a, const SortKey& b) {
    const SortKey& first = descending ? b : a;
    const SortKey& second = descending ? a : b;
    return std::tie(first.number, first.text) <
           std::tie(second.number, second.text);
  });
  return keys;
}

void AppendRow(GnomeTCCapplet* panel, GtkListStore* store,
               SitePermissionMode mode, const SiteRow& row) {
  const int state_column = kSitePermissions[mode].state_column;
  gtk_list_store_insert_with_values(
      store, nullptr, G_MAXINT,  // at the end
      kWebsiteColumn, row.website, state_column + kTextBeforeState,
      permission_state_text(panel, row.state), state_column, row.state,
      state_column + kIconAfterState, permission_state_icon(row.state),
      // Of the other lists the row ends here.
      mode == kStorageMode ? kUsedColumn : -1, row.used.text, kUsedRawColumn,
      row.used.raw_bytes, -1);
}

// In the order that the list is in.
void AppendRows(GnomeTCCapplet* panel, GtkListStore* store,
                SitePermissionMode mode, const std::vector<SiteRow>& rows) {
  int column = 0;
  GtkSortType order = GTK_SORT_ASCENDING;
  if (!gtk_tree_sortable_get_sort_column_id(GTK_TREE_SORTABLE(store), &column,
                                            &order)) {
    for (const SiteRow& row : rows) AppendRow(panel, store, mode, row);
    return;
  }
  const RowsInOrder in_order;
  for (const SortKey& key : Sorted(rows, mode, column, order)) {
    AppendRow(panel, store, mode, *key.row);
  }
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

const SASM::SettingsDictionary* master_settings(GnomeTCCapplet* panel) {
  return panel->settings->EnsureSettingsAreLoadedForDomain(
      SASM::SettingsManager::MasterDomain());
}

void fill_site_list(GnomeTCCapplet* panel, SitePermissionMode mode) {
  const SitePermission& list = kSitePermissions[mode];
  set_sensitive(panel, list.remove_button, false);
  GtkListStore* store = get_list_store(panel->builder, list.list_store);
  const std::vector<SiteRow> rows = ReadRows(panel, mode);
  const DetachedList detached(get_tree_view(panel->builder, list.tree_view),
                              store);
  AppendRows(panel, store, mode, rows);
}

PermissionState get_choice_state(GtkTreeModel* choices, GtkTreeIter* choice) {
  constexpr int kStateColumn = 2;
  int state = kPermissionStateNone;
  gtk_tree_model_get(choices, choice, kStateColumn, &state, -1);
  return static_cast<PermissionState>(state);
}

// The rows stand in the order of the states, which begin at 1.
void set_active_state(GtkComboBox* combo_box, PermissionState state) {
  gtk_combo_box_set_active(combo_box, state - 1);
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
