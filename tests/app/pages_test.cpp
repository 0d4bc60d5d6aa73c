// Effects of the pages that a user does not see, or not at once.
#include <tuple>

#include "app/notebook_pages.h"
#include "app/widget_helpers.h"
#include "store/setting_keys.h"
#include "tests/app/panel_test.h"
#include "tests/support/settings_image.h"

using testing::ElementsAre;
using testing::IsEmpty;

class PagesTest : public PanelTest {
 protected:
  PagesTest() { home_.AddSites({"a.example", "b.example"}); }

  bool IsUsable(const char* widget) {
    return gtk_widget_get_sensitive(Widget(widget));
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

// Filling a page switches buttons, which emits the signals of a user's click.
TEST_F(PagesTest, FillingAPageWritesNothing) {
  home_.Write(
      PanelHome::MasterFile(),
      image::File("settings",
                  image::Entry(SASM::kDefaultStorageLimit, image::Number(0)) +
                      image::Entry(SASM::kDefaultCameraAlways, image::Bool(1)) +
                      image::Entry(SASM::kDisallowP2PUplink, image::Bool(1))));
  Start("advanced");
  const auto before = home_.Disk();
  for (const int page : {0, 1, 2, 3, 0, 3, 1, 2}) GoToPage(page);
  Settle();
  EXPECT_EQ(home_.Disk(), before);
}

// A change on another page is stored at once, but shown when the page is.
TEST_F(PagesTest, APageIsFilledOnlyWhenItIsCurrent) {
  Start("privacy");
  EXPECT_THAT(Column("site_storage_list", 0), IsEmpty());
  GoToPage(kStoragePage);
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Allow"));
  GoToPage(kAdvancedPage);
  Select("site_storage_treeview", {1});
  ChooseInList(kStorageList, kPermissionStateAlwaysDeny);
  EXPECT_EQ(home_.Stored("b.example", SASM::kStorageLimit), "-1");
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Allow"));
  EXPECT_TRUE(IsUsable("remove_site_storage_setting_button"));
  GoToPage(kStoragePage);
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Allow", "Block"));
  // A row of a site that was removed from another list changes nothing.
  GoToPage(kPrivacyPage);
  Select("site_privacy_treeview", {1});
  Click("remove_site_privacy_setting_button");
  const auto before = home_.Disk();
  Select("site_storage_treeview", {1});
  ChooseInList(kStorageList, kPermissionStateAlwaysAllow);
  EXPECT_EQ(home_.Disk(), before);
}

TEST_F(PagesTest, AHandPointsAtWhatAClickOpens) {
  Start();
  Click("site_storage_button");
  EXPECT_TRUE(IsHandOver("site_storage_permission_column"));
  EXPECT_FALSE(IsHandOver("site_storage_site_column"));
}

TEST_F(PagesTest, BlockingPeersOverridesSitesWithoutChangingThem) {
  Start("playback");
  Select("site_p2p_treeview", {1});
  ChooseInList(kNetworkList, kPermissionStateAlwaysAllow);
  for (const auto& [choice, disallowed, shown] :
       {std::tuple("deny", "true", Names{"Block", "Block"}),
        {"ask", "false", {"Ask me", "Allow"}}}) {
    SCOPED_TRACE(choice);
    Choose(("site_p2p_always_" + std::string(choice) + "_rbutton").c_str());
    EXPECT_EQ(home_.Stored(PanelHome::kMaster, SASM::kDisallowP2PUplink),
              disallowed);
    EXPECT_EQ(home_.Stored("b.example", SASM::kP2PAlways), "true");
    EXPECT_EQ(Column("site_p2p_list", 1), shown);
    for (const char* widget : {"add_site_p2p_setting_button",
                               "site_p2p_treeview", "site_p2p_button"}) {
      EXPECT_EQ(IsUsable(widget), std::string(disallowed) == "false");
    }
  }
}
