#include "app/list_contents.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "app/list_place.h"
#include "app/list_sorting.h"
#include "app/widget_helpers.h"
#include "model/storage_setting.h"
#include "platform/tree_size.h"
#include "store/setting_keys.h"

using SASM::SettingsDictionary;
using SASM::SimpleString;

namespace {

struct UsedSpace {
  std::string text;
  guint low_bytes;  // the low 32 bits, which fit the column
};

// Members without a column in the list stay unset.
struct Row {
  const char* name;
  PermissionState state;
  UsedSpace used;
};

// In a row of any list: a column has at most a text, a number and an icon.
constexpr std::size_t kMostCells =
    3 * std::ranges::max(kLists, {}, [](const List& list) {
          return list.columns.size();
        }).columns.size();

// The cells of a row. Texts are borrowed until the row is appended.
class Cells {
 public:
  void SetText(int column, const char* text) {
    g_value_set_static_string(Add(column, G_TYPE_STRING), text);
  }
  void SetInt(int column, gint number) {
    g_value_set_int(Add(column, G_TYPE_INT), number);
  }
  void SetUint(int column, guint number) {
    g_value_set_uint(Add(column, G_TYPE_UINT), number);
  }
  void AppendTo(GtkListStore* store) {
    constexpr int kAtTheEnd = G_MAXINT;
    gtk_list_store_insert_with_valuesv(store, nullptr, kAtTheEnd, columns_,
                                       values_, count_);
  }

 private:
  GValue* Add(int column, GType type) {
    columns_[count_] = column;
    return g_value_init(&values_[count_++], type);
  }

  int columns_[kMostCells];
  GValue values_[kMostCells] = {};
  int count_ = 0;
};

// Detaches the list from its view for as long as it lives: the view would react
// to each new row, which costs far more than the row itself.
class DetachedList {
 public:
  DetachedList(GtkTreeView* view, GtkListStore* store)
      : view_(view), store_(store) {
    gtk_tree_view_set_model(view_, nullptr);
  }
  ~DetachedList() { gtk_tree_view_set_model(view_, GTK_TREE_MODEL(store_)); }
  DetachedList(const DetachedList&) = delete;
  DetachedList& operator=(const DetachedList&) = delete;

 private:
  GtkTreeView* view_;
  GtkListStore* store_;
};

UsedSpace MeasureSpace(const SASM::SettingsManager& settings,
                       const SimpleString& site) {
  const guint64 bytes = settings.SizeOfLocalStorage(site);
  return {StorageSetting::TextOfSpace(static_cast<double>(bytes)),
          static_cast<guint>(bytes)};
}

std::vector<Row> ReadNames(const SASM::SDIVector& names) {
  std::vector<Row> rows(names.count);
  for (unsigned int i = 0; i < names.count; ++i) {
    rows[i].name = names.At(i)->name.c_str();
  }
  return rows;
}

std::vector<Row> ReadSites(GnomeTCCapplet* panel, const List& list,
                           const SASM::SDIVector& sites) {
  const SettingsDictionary* master = master_settings(panel);
  const bool are_blocked = IsBlockedEverywhere(*list.permission, master);
  const bool have_sizes = FindColumn(list, Content::kUsedSpace);
  const SharedMeasurement measurement;
  std::vector<Row> rows = ReadNames(sites);
  for (unsigned int i = 0; i < sites.count; ++i) {
    const SimpleString& site = sites.At(i)->name;
    // Skips reading the files of sites whose own settings do not count.
    const SettingsDictionary* settings =
        are_blocked ? nullptr
                    : panel->settings->EnsureSettingsAreLoadedForDomain(site);
    rows[i].state = EffectiveState(*list.permission, master, settings);
    if (have_sizes) rows[i].used = MeasureSpace(*panel->settings, site);
  }
  return rows;
}

std::vector<Row> ReadRows(GnomeTCCapplet* panel, const List& list) {
  const SASM::SDIVector* names = list.permission
                                     ? panel->settings->GetDomains()
                                     : panel->trusted_paths->getVectorValue();
  if (!names) return {};
  return list.permission ? ReadSites(panel, list, *names) : ReadNames(*names);
}

SortKey KeyOf(const Row& row, Content content) {
  switch (content) {
    case Content::kSite:
      return sort_key_of_domain(row.name);
    case Content::kUsedSpace:
      return {.number = row.used.low_bytes};
    case Content::kPermission:
      return {.number = static_cast<guint>(row.state)};
    case Content::kLocation:
      break;  // sorted by the toolkit
  }
  return {};
}

// Sorts as the sort functions do, but makes the key of each row only once.
std::vector<const Row*> Sorted(const std::vector<Row>& rows, Content content,
                               GtkSortType order) {
  using Entry = std::pair<SortKey, const Row*>;
  std::vector<Entry> entries;
  entries.reserve(rows.size());
  for (const Row& row : rows) entries.emplace_back(KeyOf(row, content), &row);
  if (order == GTK_SORT_ASCENDING) {
    std::ranges::stable_sort(entries, std::ranges::less(), &Entry::first);
  } else {
    std::ranges::stable_sort(entries, std::ranges::greater(), &Entry::first);
  }
  std::vector<const Row*> sorted;
  sorted.reserve(rows.size());
  for (const Entry& entry : entries) sorted.push_back(entry.second);
  return sorted;
}

// The rows in the order in which the list store is sorted, if it is.
std::vector<const Row*> InOrder(const std::vector<Row>& rows, const List& list,
                                GtkListStore* store) {
  int sort_column = 0;
  GtkSortType order = GTK_SORT_ASCENDING;
  if (gtk_tree_sortable_get_sort_column_id(GTK_TREE_SORTABLE(store),
                                           &sort_column, &order)) {
    for (const Column& column : list.columns) {
      if (column.sort_column == sort_column) {
        return Sorted(rows, column.content, order);
      }
    }
  }
  std::vector<const Row*> in_order;
  in_order.reserve(rows.size());
  for (const Row& row : rows) in_order.push_back(&row);
  return in_order;
}

void SetCells(GnomeTCCapplet* panel, const Column& column, const Row& row,
              Cells* cells) {
  switch (column.content) {
    case Content::kSite:
    case Content::kLocation:
      return cells->SetText(column.text_column, row.name);
    case Content::kUsedSpace:
      cells->SetText(column.text_column, row.used.text.c_str());
      return cells->SetUint(column.sort_column, row.used.low_bytes);
    case Content::kPermission:
      cells->SetText(column.text_column,
                     permission_state_text(panel, row.state));
      cells->SetText(column.icon_column, permission_state_icon(row.state));
      return cells->SetInt(column.sort_column, row.state);
  }
}

}  // namespace

void fill_list(GnomeTCCapplet* panel, const List& list) {
  const ListPlace place(panel, list);
  set_sensitive(panel, list.remove_button, false);
  const std::vector<Row> rows = ReadRows(panel, list);
  GtkListStore* store = get_list_store(panel->builder, list.store);
  const DetachedList detached(get_tree_view(panel->builder, list.tree_view),
                              store);
  gtk_list_store_clear(store);
  const RowsInOrder in_order(store);
  for (const Row* row : InOrder(rows, list, store)) {
    Cells cells;
    for (const Column& column : list.columns) {
      SetCells(panel, column, *row, &cells);
    }
    cells.AppendTo(store);
  }
}
