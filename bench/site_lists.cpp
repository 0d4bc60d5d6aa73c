// The lists of sites, filled to the main loop's idle.
#include <sqlite3.h>

#include <algorithm>
#include <memory>

#include "app/list_contents.h"
#include "app/list_sorting.h"
#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/panel_window.h"
#include "bench/private_home.h"
#include "store/setting_keys.h"

namespace {

constexpr std::size_t kSizes[] = {100, 1000, 10000};
constexpr char kDescription[] = "Always Allow";

struct ShownList {
  const List& list;
  GtkTreeView* view;
  GtkListStore* store;
};

ShownList FindList(GnomeTCCapplet* panel, const List& list) {
  return {list, get_tree_view(panel->builder, list.tree_view),
          get_list_store(panel->builder, list.store)};
}

void AppendRow(const ShownList& shown, const char* site, std::size_t used) {
  if (&shown.list == &kLists[kStorageList]) {
    gtk_list_store_insert_with_values(shown.store, nullptr, G_MAXINT, 0, site,
                                      1, "4 kB", 2, static_cast<guint>(used), 3,
                                      kDescription, 4, 3, 5,
                                      "icon_corvane_always_allow", -1);
  } else {
    gtk_list_store_insert_with_values(shown.store, nullptr, G_MAXINT, 0, site,
                                      1, kDescription, 2, 3, 3,
                                      "icon_corvane_always_allow", -1);
  }
}

// Takes the list off its view, lets `fill` append the rows, and puts it back.
template <typename Fill>
void FillDetached(const ShownList& shown, Fill fill) {
  gtk_tree_view_set_model(shown.view, nullptr);
  gtk_list_store_clear(shown.store);
  fill();
  gtk_tree_view_set_model(shown.view, GTK_TREE_MODEL(shown.store));
  RunToIdle();
}

void FillFromMemory(const ShownList& shown, const PrivateHome& home) {
  FillDetached(shown, [&] {
    for (const std::string& site : home.Sites()) {
      const bool is_measured = &shown.list == &kLists[kStorageList];
      AppendRow(shown, site.c_str(),
                is_measured ? SizeOfTree(home.StorageOf(site)) : 0);
    }
  });
}

void FillSorted(const ShownList& shown, const PrivateHome& home) {
  std::vector<std::pair<std::string, const char*>> rows;
  for (const std::string& site : home.Sites()) {
    rows.emplace_back(reverse_domain_components(site.c_str()), site.c_str());
  }
  std::sort(rows.begin(), rows.end());
  FillDetached(shown, [&] {
    for (const auto& row : rows) AppendRow(shown, row.second, 0);
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

void FillFromDatabase(const ShownList& shown, const std::string& path) {
  FillDetached(shown, [&] {
    sqlite3* database = nullptr;
    sqlite3_stmt* rows = nullptr;
    sqlite3_open(path.c_str(), &database);
    sqlite3_prepare_v2(database, "SELECT site, always, allow FROM sites", -1,
                       &rows, nullptr);
    while (sqlite3_step(rows) == SQLITE_ROW) {
      const unsigned char* site = sqlite3_column_text(rows, 0);
      AppendRow(shown, static_cast<const char*>(static_cast<const void*>(site)),
                0);
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
  });
}

void SortBy(const ShownList& shown, int column) {
  gtk_tree_sortable_set_sort_column_id(GTK_TREE_SORTABLE(shown.store), column,
                                       GTK_SORT_ASCENDING);
}

void Fill(GnomeTCCapplet* panel, const ShownList& shown) {
  fill_list(panel, shown.list);
  RunToIdle();
}

void MeasureFirstFill(GnomeTCCapplet* panel, const ShownList& shown,
                      const PrivateHome& home) {
  const std::string database = MakeDatabase(home);
  const auto settle = [] { gdk_flush(); };
  Measure(
      {"first fill of a site list", home.Sites().size()},
      {{kPanel, [&] { Fill(panel, shown); },
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
          FillFromMemory(shown, home);
        },
        settle},
       {"SQLite table", [&] { FillFromDatabase(shown, database); }, settle}});
}

// Every look-up of a refill, and nothing else.
void LookUpAll(GnomeTCCapplet* panel, const ShownList& shown) {
  const SASM::SDIVector* domains = panel->settings->GetDomains();
  for (unsigned int i = 0; i < domains->count; ++i) {
    (void)StoredState(*shown.list.permission,
                      panel->settings->EnsureSettingsAreLoadedForDomain(
                          domains->At(i)->name));
  }
}

void MeasureRefill(GnomeTCCapplet* panel, const ShownList& shown,
                   const PrivateHome& home, const char* subject) {
  const auto settle = [] { gdk_flush(); };
  Fill(panel, shown);
  Measure({subject, home.Sites().size()},
          {{kPanel, [&] { Fill(panel, shown); }, settle},
           {kFloor, [&] { FillFromMemory(shown, home); }, settle},
           {"its look-ups alone", [&] { LookUpAll(panel, shown); }, settle}});
}

void MeasureSortedRefill(GnomeTCCapplet* panel, const ShownList& shown,
                         const PrivateHome& home) {
  const auto set_sorting = [&](int column) {
    return [&shown, column] {
      gtk_list_store_clear(shown.store);
      SortBy(shown, column);
      gdk_flush();
    };
  };
  Measure({"refill of a sorted list", home.Sites().size()},
          {{kPanel, [&] { Fill(panel, shown); }, set_sorting(0)},
           {kFloor, [&] { FillSorted(shown, home); },
            set_sorting(GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID)}});
  SortBy(shown, GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID);
}

// What the panel holds when every list shows the sites, above what it holds
// with none.
void MeasureMemory(GnomeTCCapplet* panel, const PrivateHome& home) {
  const auto fill_all = [panel] {
    OpenStore(panel);
    for (const List& list : kSiteLists) fill_list(panel, list);
    RunToIdle();
  };
  const auto empty_all = [panel] {
    CloseStore();
    for (const List& list : kSiteLists) {
      gtk_list_store_clear(FindList(panel, list).store);
    }
    RunToIdle();
  };
  Measure({"store opened, three lists shown", home.Sites().size(), 3},
          {{kPanel, fill_all, empty_all}});
}

void ShowDialog(GnomeTCCapplet* panel, const List& list) {
  gtk_widget_show(get_widget(panel->builder, list.dialog));
  RunToIdle();
}

}  // namespace

int main(int argc, char** argv) {
  PrivateHome home;
  GnomeTCCapplet* panel = StartWithoutStore(&argc, &argv);
  const ShownList camera = FindList(panel, kLists[kCameraList]);
  const ShownList storage = FindList(panel, kLists[kStorageList]);
  for (const List& list : kSiteLists) ShowDialog(panel, list);
  for (const std::size_t size : kSizes) {
    home.MakeSites(size, true);
    MeasureMemory(panel, home);
    MeasureFirstFill(panel, camera, home);
    MeasureRefill(panel, camera, home, "refill");
    MeasureRefill(panel, storage, home, "refill, sizes measured");
    MeasureSortedRefill(panel, camera, home);
  }
}
