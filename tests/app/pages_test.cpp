// Effects of the pages that a user does not see, or not at once.
#include "app/notebook_pages.h"
#include "app/widget_helpers.h"
#include "tests/app/panel_test.h"
#include "tests/support/settings_image.h"

using testing::ElementsAre;
using testing::IsEmpty;

class PagesTest : public PanelTest {
 protected:
  PagesTest() { home_.AddSites({"a.example", "b.example"}); }

  // In the site's file.
  void ExpectLimit(const std::string& site, double limit_kb) const {
    EXPECT_THAT(
        home_.Read(TemporaryHome::SettingsFileOf(site)),
        testing::HasSubstr(image::Entry("klimit", image::Number(limit_kb))));
  }

  // Whether the pointer is a hand over the first row of a column.
  bool IsHandOver(const char* column) {
    GtkTreeView* view = get_tree_view(panel_->builder, "site_storage_treeview");
    GdkRectangle cell;
    gtk_tree_view_get_cell_area(view, nullptr,
                                get_column(panel_->builder, column), &cell);
    GdkEvent motion = {.type = GDK_MOTION_NOTIFY};
    motion.motion.window = gtk_tree_view_get_bin_window(view);
    motion.motion.x = cell.x + 1;
    gtk_widget_event(GTK_WIDGET(view), &motion);
    return gdk_window_get_cursor(motion.motion.window);
  }
};

// A change on another page is stored at once, but shown when the page is.
TEST_F(PagesTest, APageIsFilledOnlyWhenItIsCurrent) {
  Start("privacy");
  EXPECT_THAT(Column("site_storage_list", 0), IsEmpty());
  GoToPage(kStoragePage);
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Allow"));
  GoToPage(kAdvancedPage);
  Select("site_storage_treeview", {1});
  ChooseInList(kStorageList, kPermissionStateAlwaysDeny);
  ExpectLimit("b.example", -1);
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Allow"));
  EXPECT_TRUE(
      gtk_widget_get_sensitive(Widget("remove_site_storage_setting_button")));
  GoToPage(kStoragePage);
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Block"));
  // A row of a site that was removed from another list changes nothing.
  GoToPage(kPrivacyPage);
  Select("site_privacy_treeview", {1});
  Click("remove_site_privacy_setting_button");
  const auto before = home_.Take();
  Select("site_storage_treeview", {1});
  ChooseInList(kStorageList, kPermissionStateAlwaysAllow);
  EXPECT_EQ(home_.Take(), before);
}

TEST_F(PagesTest, AHandPointsAtWhatAClickOpens) {
  Start();
  Click("site_storage_button");
  EXPECT_TRUE(IsHandOver("site_storage_permission_column"));
  EXPECT_FALSE(IsHandOver("site_storage_site_column"));
}

TEST_F(PagesTest, ShowAndChangeTenThousandSites) {
  Names sites;
  for (int i = 0; i < 10000; ++i) {
    sites.push_back("s" + std::to_string(i) + ".example");
  }
  home_.AddSites(sites);
  Start();
  const List& list = kLists[kStorageList];
  gtk_widget_show(Widget(list.dialog));
  Settle();
  EXPECT_EQ(Column(list.store, 0), sites);
  gtk_tree_view_column_clicked(
      get_column(panel_->builder, "site_storage_site_column"));
  ASSERT_EQ(Column(list.store, 0)[2], "s10.example");
  Select(list.tree_view, {0, 2, 9999});
  GtkAdjustment* scrolling = gtk_tree_view_get_vadjustment(
      get_tree_view(panel_->builder, list.tree_view));
  constexpr double kPlace = 200000;
  Settle();
  gtk_adjustment_set_value(scrolling, kPlace);
  Settle();
  // Busy while the list is filled, and no longer.
  GdkWindow* window = gtk_widget_get_window(panel_->window);
  const auto expect_watch =
      +[](GdkWindow* over) { EXPECT_TRUE(gdk_window_get_cursor(over)); };
  g_signal_connect_swapped(get_list_store(panel_->builder, list.store),
                           "row-inserted", G_CALLBACK(expect_watch), window);
  ChooseInList(kStorageList, kPermissionStateAlwaysAsk);
  EXPECT_FALSE(gdk_window_get_cursor(window));
  EXPECT_EQ(gtk_adjustment_get_value(scrolling), kPlace);
  ExpectLimit("s10.example", 0);
  Select(list.tree_view, {2});
  Click(list.remove_button);
  sites.erase(sites.begin() + 10);
  EXPECT_EQ(image::NamesOf(*panel_->settings->GetDomains()), sites);
}
