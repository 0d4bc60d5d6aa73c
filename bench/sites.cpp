// The lists of sites in the window, filled to the main loop's idle, and what
// is done in them.
#include <algorithm>
#include <functional>

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

using Run = std::function<void()>;

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

  void MeasureAll(std::size_t sites);
  // All of the sites selected in the list, and removed.
  void MeasureRemoval(std::size_t sites);

 private:
  // `prepare` comes before both.
  void Compare(const char* subject, const Run& panel, const Run& floor,
               const Run& prepare = gdk_flush) const {
    Measure({subject, home_.Sites().size()},
            {{kPanel, panel, prepare}, {kFloor, floor, prepare}});
  }
  // By the panel.
  void Fill(int page) {
    update_notebook_page(panel_, page);
    RunToIdle();
  }
  void FillFloor(const SiteList& list) {
    FillBare(list, home_.Sites(), home_.SitePaths());
    RunToIdle();
  }
  void MeasureMemory();
  void MeasureFirstFill();
  void MeasureSortedRefill();
  void MeasureChange();

  SiteHome home_;
  GnomeTCCapplet* panel_;
  SiteList camera_;
  SiteList storage_;
};

// What the panel holds when every list shows the sites, above what it holds
// with none.
void SiteWindow::MeasureMemory() {
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
  Measure({"store and all lists", home_.Sites().size()},
          {{kPanel, fill_all, empty_all}});
}

void SiteWindow::MeasureFirstFill() {
  const auto read_and_fill = [this] {
    ReadSiteFiles(home_.SitePaths());
    FillFloor(camera_);
  };
  const auto open = [this] {
    OpenStore(panel_);
    gdk_flush();
  };
  Compare(
      "first fill of a list", [this] { Fill(kPrivacyPage); }, read_and_fill,
      open);
}

void SiteWindow::MeasureSortedRefill() {
  const auto sort_by = [this](int column) {
    gtk_list_store_clear(camera_.store);
    gtk_tree_sortable_set_sort_column_id(GTK_TREE_SORTABLE(camera_.store),
                                         column, GTK_SORT_ASCENDING);
    gdk_flush();
  };
  const auto fill_sorted = [this] {
    std::vector<std::pair<std::string, std::string>> sites;
    for (const std::string& site : home_.Sites()) {
      sites.emplace_back(reverse_domain_components(site.c_str()), site);
    }
    std::ranges::sort(sites);
    SiteHome::Names sorted;
    for (auto& [key, site] : sites) sorted.push_back(std::move(site));
    FillBare(camera_, sorted, home_.SitePaths());
    RunToIdle();
  };
  const auto unsort = [&] {
    sort_by(GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID);
  };
  Measure({"refill of a sorted list", home_.Sites().size()},
          {{kPanel, [this] { Fill(kPrivacyPage); }, [&] { sort_by(0); }},
           {kFloor, fill_sorted, unsort}});
  unsort();
}

// The whole of what happens when a permission is chosen in one row.
void SiteWindow::MeasureChange() {
  const std::string& site = home_.Sites()[0];
  const std::string image = image::DefaultSiteFile(site);
  const auto change = [&] {
    (void)SetSiteState(kPermissions[kStorage], site.c_str(),
                       kPermissionStateAlwaysAsk);
    Fill(kStoragePage);
  };
  const auto rewrite = [&] {
    RewriteFile(home_.SitePaths()[0].settings_file, image);
    FillFloor(storage_);
  };
  Compare("a row's permission changed", change, rewrite);
}

void SiteWindow::MeasureAll(std::size_t sites) {
  home_.MakeSites(sites);
  MeasureMemory();
  MeasureFirstFill();
  OpenStore(panel_);
  Compare(
      "refill", [this] { Fill(kPrivacyPage); }, [this] { FillFloor(camera_); });
  Compare(
      "refill with sizes", [this] { Fill(kStoragePage); },
      [this] { FillFloor(storage_); });
  MeasureSortedRefill();
  MeasureChange();
}

void SiteWindow::MeasureRemoval(std::size_t sites) {
  home_.MakeSites(sites);
  const auto restore = [this] {
    home_.RestoreSites(1);
    OpenStore(panel_);
    Fill(kStoragePage);
  };
  GtkWidget* button =
      get_widget(panel_->builder, kLists[kStorageList].remove_button);
  const auto remove = [&] {
    gtk_tree_selection_select_all(gtk_tree_view_get_selection(storage_.view));
    gtk_widget_set_sensitive(button, TRUE);
    gtk_button_clicked(GTK_BUTTON(button));
    RunToIdle();
  };
  Compare(
      "all sites removed in window", remove, [this] { home_.RemoveSites(1); },
      restore);
}

}  // namespace

int main(int argc, char** argv) {
  SiteWindow window(&argc, &argv);
  for (const std::size_t size : kSizes) window.MeasureAll(size);
  for (const std::size_t size : kRemovedSizes) window.MeasureRemoval(size);
}
