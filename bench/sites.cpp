// The lists of sites in the window, filled to the main loop's idle, and what
// is done in them.
#include <algorithm>

#include "app/list_sorting.h"
#include "app/widget_helpers.h"
#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/panel_window.h"
#include "model/permission_changes.h"
#include "tests/support/settings_image.h"

namespace {

constexpr std::size_t kSizes[] = {1000, 10000, 100000};
constexpr std::size_t kRemovedSizes[] = {500, 5000};

class SiteWindow {
 public:
  SiteWindow(int* argc, char*** argv)
      : panel_(StartWithoutStore(argc, argv)),
        camera_(FindSiteList(panel_, kCameraList)),
        storage_(FindSiteList(panel_, kStorageList)) {
    gtk_widget_show(panel_->window);
    for (const List& list : kLists) {
      gtk_widget_show(get_widget(panel_->builder, list.dialog));
    }
    RunToIdle();
  }

  void MeasureAll(const SiteHome& home);
  // All of the sites selected in the list, and removed.
  void MeasureRemoval(const SiteHome& home);

 private:
  // By the panel.
  void Fill(int page) {
    update_notebook_page(panel_, page);
    RunToIdle();
  }
  void FillFloor(const SiteList& list, const SiteHome& home) {
    FillBare(list, home.Sites(), home.SitePaths());
    RunToIdle();
  }
  void MeasureMemory(const SiteHome& home);
  void MeasureFirstFill(const SiteHome& home);
  void MeasureRefill(const char* subject, int page, const SiteList& list,
                     const SiteHome& home);
  void MeasureSortedRefill(const SiteHome& home);
  void MeasureChange(const SiteHome& home);

  GnomeTCCapplet* panel_;
  SiteList camera_;
  SiteList storage_;
};

// What the panel holds when every list shows the sites, above what it holds
// with none.
void SiteWindow::MeasureMemory(const SiteHome& home) {
  const auto fill_all = [this] {
    OpenStore(panel_);
    for (const int page : {kStoragePage, kPrivacyPage, kPlaybackPage}) {
      Fill(page);
    }
  };
  const auto empty_all = [this] {
    CloseStore();
    for (const List& list : kLists) {
      gtk_list_store_clear(get_list_store(panel_->builder, list.store));
    }
    RunToIdle();
  };
  Measure({"store and all lists", home.Sites().size()},
          {{kPanel, fill_all, empty_all}});
}

void SiteWindow::MeasureFirstFill(const SiteHome& home) {
  Measure({"first fill of a list", home.Sites().size()},
          {{kPanel, [&] { Fill(kPrivacyPage); },
            [&] {
              OpenStore(panel_);
              gdk_flush();
            }},
           {kFloor,
            [&] {
              std::vector<char> buffer(65536);
              for (const SiteHome::Paths& site : home.SitePaths()) {
                ReadFile(site.settings_file.c_str(), &buffer);
              }
              FillFloor(camera_, home);
            },
            gdk_flush}});
}

void SiteWindow::MeasureRefill(const char* subject, int page,
                               const SiteList& list, const SiteHome& home) {
  Measure({subject, home.Sites().size()},
          {{kPanel, [&] { Fill(page); }, gdk_flush},
           {kFloor, [&] { FillFloor(list, home); }, gdk_flush}});
}

void SiteWindow::MeasureSortedRefill(const SiteHome& home) {
  const auto sort_by = [this](int column) {
    gtk_list_store_clear(camera_.store);
    gtk_tree_sortable_set_sort_column_id(GTK_TREE_SORTABLE(camera_.store),
                                         column, GTK_SORT_ASCENDING);
    gdk_flush();
  };
  const auto fill_sorted = [&] {
    std::vector<std::pair<std::string, std::string>> sites;
    for (const std::string& site : home.Sites()) {
      sites.emplace_back(reverse_domain_components(site.c_str()), site);
    }
    std::ranges::sort(sites);
    SiteHome::Names sorted;
    for (auto& [key, site] : sites) sorted.push_back(std::move(site));
    FillBare(camera_, sorted, home.SitePaths());
    RunToIdle();
  };
  const auto unsort = [&] {
    sort_by(GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID);
  };
  Measure({"refill of a sorted list", home.Sites().size()},
          {{kPanel, [&] { Fill(kPrivacyPage); }, [&] { sort_by(0); }},
           {kFloor, fill_sorted, unsort}});
  unsort();
}

// The whole of what happens when a permission is chosen in one row.
void SiteWindow::MeasureChange(const SiteHome& home) {
  const std::string& site = home.Sites()[0];
  const std::string image = image::DefaultSiteFile(site);
  Measure({"a row's permission changed", home.Sites().size()},
          {{kPanel,
            [&] {
              (void)SetSiteState(kPermissions[kStorage], site.c_str(),
                                 kPermissionStateAlwaysAsk);
              Fill(kStoragePage);
            },
            gdk_flush},
           {kFloor,
            [&] {
              RewriteFile(home.SitePaths()[0].settings_file.c_str(),
                          image.data(), image.size());
              FillFloor(storage_, home);
            },
            gdk_flush}});
}

void SiteWindow::MeasureAll(const SiteHome& home) {
  MeasureMemory(home);
  MeasureFirstFill(home);
  OpenStore(panel_);
  MeasureRefill("refill", kPrivacyPage, camera_, home);
  MeasureRefill("refill with sizes", kStoragePage, storage_, home);
  MeasureSortedRefill(home);
  MeasureChange(home);
}

void SiteWindow::MeasureRemoval(const SiteHome& home) {
  const auto restore = [&] {
    for (std::size_t i = 0; i < home.Sites().size(); ++i) home.RestoreSite(i);
    home.RestoreMasterFile();
    OpenStore(panel_);
    Fill(kStoragePage);
  };
  GtkWidget* remove =
      get_widget(panel_->builder, kLists[kStorageList].remove_button);
  Measure({"all sites removed in window", home.Sites().size()},
          {{kPanel,
            [&] {
              gtk_tree_selection_select_all(
                  gtk_tree_view_get_selection(storage_.view));
              gtk_widget_set_sensitive(remove, TRUE);
              gtk_button_clicked(GTK_BUTTON(remove));
              RunToIdle();
            },
            restore},
           {kFloor,
            [&] {
              for (const SiteHome::Paths& site : home.SitePaths()) {
                RemoveTree(site.storage);
                RemoveTree(site.settings_directory);
              }
              RewriteFile(home.MasterPath().c_str(), home.MasterImage().data(),
                          100);
            },
            restore}});
}

}  // namespace

int main(int argc, char** argv) {
  SiteHome home;
  SiteWindow window(&argc, &argv);
  for (const std::size_t size : kSizes) {
    home.MakeSites(size);
    window.MeasureAll(home);
  }
  for (const std::size_t size : kRemovedSizes) {
    home.MakeSites(size);
    window.MeasureRemoval(home);
  }
}
