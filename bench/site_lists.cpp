// The lists of sites, filled to the main loop's idle.
#include <sqlite3.h>

#include <algorithm>
#include <memory>

#include "app/list_sorting.h"
#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/panel_window.h"
#include "bench/private_home.h"
#include "store/setting_keys.h"

namespace {

constexpr std::size_t kSizes[] = {100, 1000, 10000};
constexpr SitePermissionMode kModes[] = {kCameraAndMicMode, kStorageMode,
                                         kPeerAssistedMode};
constexpr char kDescription[] = "Always Allow";

struct List {
  SitePermissionMode mode;
  GtkTreeView* view;
  GtkListStore* store;
};

List FindList(GnomeTCCapplet* panel, SitePermissionMode mode) {
  const SitePermission& list = kSitePermissions[mode];
  return {mode, get_tree_view(panel->builder, list.tree_view),
          get_list_store(panel->builder, list.list_store)};
}

void AppendRow(const List& list, const char* site, std::size_t used) {
  if (list.mode == kStorageMode) {
    gtk_list_store_insert_with_values(list.store, nullptr, G_MAXINT, 0, site, 1,
                                      "4 kB", 2, static_cast<guint>(used), 3,
                                      kDescription, 4, 3, 5,
                                      "icon_corvane_always_allow", -1);
  } else {
    gtk_list_store_insert_with_values(list.store, nullptr, G_MAXINT, 0, site, 1,
                                      kDescription, 2, 3, 3,
                                      "icon_corvane_always_allow", -1);
  }
}

// Takes the list off its view, lets `fill` append the rows, and puts it back.
template <typename Fill>
void FillDetached(const List& list, Fill fill) {
  gtk_tree_view_set_model(list.view, nullptr);
  gtk_list_store_clear(list.store);
  fill();
  gtk_tree_view_set_model(list.view, GTK_TREE_MODEL(list.store));
  RunToIdle();
}

void FillFromMemory(const List& list, const PrivateHome& home) {
  FillDetached(list, [&] {
    for (const std::string& site : home.Sites()) {
      const bool is_measured = list.mode == kStorageMode;
      AppendRow(list, site.c_str(),
                is_measured ? SizeOfTree(home.StorageOf(site)) : 0);
    }
  });
}

void FillSorted(const List& list, const PrivateHome& home) {
  std::vector<std::pair<std::string, const char*>> rows;
  for (const std::string& site : home.Sites()) {
    rows.emplace_back(reverse_domain_components(site.c_str()), site.c_str());
  }
  std::sort(rows.begin(), rows.end());
  FillDetached(list, [&] {
    for (const auto& row : rows) AppendRow(list, row.second, 0);
  });
}

std::string MakeDatabase(const PrivateHome& home) {
  std::string path =
      home / ("sites" + std::to_string(home.Sites().size()) + ".db");
  sqlite3* database = nullptr;
  sqlite3_open(path.c_str(), &database);
  std::string statements = "BEGIN; CREATE TABLE sites (site, always, allow);";
  for (const std::string& site : home.Sites()) {
    statements += "INSERT INTO sites VALUES ('" + site + "', 1, 1);";
  }
  statements += "COMMIT";
  Check(sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) ==
            SQLITE_OK,
        "SQLite");
  sqlite3_close(database);
  return path;
}

void FillFromDatabase(const List& list, const std::string& path) {
  FillDetached(list, [&] {
    sqlite3* database = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open(path.c_str(), &database);
    sqlite3_prepare_v2(database, "SELECT site, always, allow FROM sites", -1,
                       &rows, nullptr);
    while (sqlite3_step(rows) == SQLITE_ROW) {
      const unsigned char* site = sqlite3_column_text(rows, 0);
      AppendRow(list, static_cast<const char*>(static_cast<const void*>(site)),
                0);
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
  });
}

void SortBy(const List& list, int column) {
  gtk_tree_sortable_set_sort_column_id(GTK_TREE_SORTABLE(list.store), column,
                                       GTK_SORT_ASCENDING);
}

void Fill(GnomeTCCapplet* panel, const List& list) {
  fill_site_list(panel, list.mode);
  RunToIdle();
}

void MeasureFirstFill(GnomeTCCapplet* panel, const List& list,
                      const PrivateHome& home) {
  const std::string database = MakeDatabase(home);
  const auto settle = [] { gdk_flush(); };
  Measure(
      {"first fill of a site list", home.Sites().size()},
      {{kPanel, [&] { Fill(panel, list); },
        [&] {
          OpenStore(panel);
          settle();
        }},
       {kFloor,
        [&] {
          std::vector<char> buffer(65536);
          for (const std::string& site : home.Sites()) {
            ReadFile(home.FileOf(site).c_str(), &buffer);
          }
          FillFromMemory(list, home);
        },
        settle},
       {"SQLite table", [&] { FillFromDatabase(list, database); }, settle}});
}

// Every look-up of a refill, and nothing else.
void LookUpAll(GnomeTCCapplet* panel, const List& list) {
  const Permission& permission =
      kPermissions[kSitePermissions[list.mode].permission];
  const SASM::SDIVector* domains = panel->settings->GetDomains();
  for (unsigned int i = 0; i < domains->count; ++i) {
    (void)StoredState(permission,
                      panel->settings->EnsureSettingsAreLoadedForDomain(
                          domains->At(i)->name));
  }
}

void MeasureRefill(GnomeTCCapplet* panel, const List& list,
                   const PrivateHome& home, const char* subject) {
  const auto settle = [] { gdk_flush(); };
  Fill(panel, list);
  Measure({subject, home.Sites().size()},
          {{kPanel, [&] { Fill(panel, list); }, settle},
           {kFloor, [&] { FillFromMemory(list, home); }, settle},
           {"its look-ups alone", [&] { LookUpAll(panel, list); }, settle}});
}

void MeasureSortedRefill(GnomeTCCapplet* panel, const List& list,
                         const PrivateHome& home) {
  const auto set_sorting = [&](int column) {
    return [&list, column] {
      gtk_list_store_clear(list.store);
      SortBy(list, column);
      gdk_flush();
    };
  };
  Measure({"refill of a sorted list", home.Sites().size()},
          {{kPanel, [&] { Fill(panel, list); }, set_sorting(0)},
           {kFloor, [&] { FillSorted(list, home); },
            set_sorting(GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID)}});
  SortBy(list, GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID);
}

// What the panel holds when every list shows the sites, above what it holds
// with none.
void MeasureMemory(GnomeTCCapplet* panel, const PrivateHome& home) {
  const auto fill_all = [panel] {
    OpenStore(panel);
    for (const SitePermissionMode mode : kModes) fill_site_list(panel, mode);
    RunToIdle();
  };
  const auto empty_all = [panel] {
    CloseStore();
    for (const SitePermissionMode mode : kModes) {
      gtk_list_store_clear(FindList(panel, mode).store);
    }
    RunToIdle();
  };
  Measure({"store opened, three lists shown", home.Sites().size(), 3},
          {{kPanel, fill_all, empty_all}});
}

void ShowDialog(GnomeTCCapplet* panel, SitePermissionMode mode) {
  gtk_widget_show(get_widget(panel->builder, kSitePermissions[mode].dialog));
  RunToIdle();
}

}  // namespace

int main(int argc, char** argv) {
  PrivateHome home;
  GnomeTCCapplet* panel = StartWithoutStore(&argc, &argv);
  const List camera = FindList(panel, kCameraAndMicMode);
  const List storage = FindList(panel, kStorageMode);
  for (const SitePermissionMode mode : kModes) ShowDialog(panel, mode);
  for (const std::size_t size : kSizes) {
    home.MakeSites(size, true);
    MeasureMemory(panel, home);
    MeasureFirstFill(panel, camera, home);
    MeasureRefill(panel, camera, home, "refill");
    MeasureRefill(panel, storage, home, "refill, sizes measured");
    MeasureSortedRefill(panel, camera, home);
  }
}
