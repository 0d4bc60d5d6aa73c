#include <gmock/gmock.h>

#include "app/list_sorting.h"
#include "app/notebook_pages.h"
#include "app/widget_helpers.h"
#include "store/setting_keys.h"
#include "tests/app/panel_test.h"

using SASM::kDomains;
using testing::ElementsAre;

namespace {

constexpr PermissionState kBlock =
    PermissionSetting::kPermissionStateAlwaysDeny;
constexpr PermissionState kAsk = PermissionSetting::kPermissionStateAlwaysAsk;
constexpr PermissionState kAllow =
    PermissionSetting::kPermissionStateAlwaysAllow;

// One of the three lists, and what its permissions look like on disk.
struct ListCase {
  SitePermissionMode mode;
  const char* page_name;
  const char* site_column;
  const char* permission_column;
  int text_column;
  // What the new-site dialog offers.
  PermissionState preset;
  const char* keys[2];
  // By permission, Block first.
  const char* values[3][2];
};

void PrintTo(const ListCase& list, std::ostream* out) {
  *out << list.page_name;
}

constexpr ListCase kLists[] = {
    {kCameraAndMicMode,
     "privacy",
     "site_privacy_site_column",
     "site_privacy_cam_and_mic_column",
     1,
     kAsk,
     {SASM::kCameraAlways, SASM::kCameraAllow},
     {{"true", "false"}, {"false", "false"}, {"true", "true"}}},
    {kStorageMode,
     "storage",
     "site_storage_site_column",
     "site_storage_permission_column",
     3,
     kAllow,
     {SASM::kStorageLimit, SASM::kStorageLimit},
     {{"-1", "-1"}, {"0", "0"}, {"100", "100"}}},
    {kPeerAssistedMode,
     "playback",
     "site_p2p_site_column",
     "site_p2p_permission_column",
     1,
     kAllow,
     {SASM::kP2PAlways, SASM::kP2PAllow},
     {{"true", "false"}, {"false", "false"}, {"true", "true"}}},
};

constexpr const char* kWords[] = {"Block", "Ask me", "Allow"};

}  // namespace

class SiteListTest : public PanelTest,
                     public testing::WithParamInterface<ListCase> {
 protected:
  SiteListTest() {
    const Names sites = {"shop.example.com", "a.example.org", "example.com"};
    home_.AddSites(sites);
    for (const std::string& site : sites) data_[site] = home_.AddData(site, 10);
    Start(GetParam().page_name);
  }

  const SitePermission& List() { return kSitePermissions[GetParam().mode]; }
  Names Sites() { return Column(List().list_store, 0); }

  void ExpectStored(const std::string& site, PermissionState state) {
    SCOPED_TRACE(site);
    for (int i : {0, 1}) {
      EXPECT_EQ(home_.Stored(site, GetParam().keys[i]),
                GetParam().values[state - 1][i]);
    }
  }

  void SortBy(const char* column) {
    gtk_tree_view_column_clicked(get_column(panel_->builder, column));
  }

  void AddSite(const std::string& site, PermissionState state) {
    Click(List().add_button);
    EXPECT_FALSE(IsSensitive("new_site_add_button"));
    Type("new_site_entry", site);
    gtk_combo_box_set_active(GTK_COMBO_BOX(Widget("new_site_permission")),
                             state - 1);
    Click("new_site_add_button");
    EXPECT_FALSE(gtk_widget_get_visible(Widget("new_site_dialog")));
  }

  std::map<std::string, std::string> data_;
};

TEST_P(SiteListTest, ChoiceReachesEverySelectedRow) {
  for (const PermissionState state : {kBlock, kAllow, kAsk}) {
    Select(List().tree_view, {0, 2});
    ChooseInList(GetParam().mode, state);
    ExpectStored("shop.example.com", state);
    ExpectStored("example.com", state);
    EXPECT_EQ(Column(List().list_store, GetParam().text_column)[2],
              kWords[state - 1]);
    EXPECT_FALSE(IsSensitive(List().remove_button));
  }
  EXPECT_EQ(home_.Stored("a.example.org", "klimit"), "100");
  EXPECT_EQ(home_.Stored("a.example.org", "always"), "false");
  EXPECT_EQ(home_.Stored("a.example.org", "p2palways"), "false");
}

TEST_P(SiteListTest, AddsASiteOrChangesAKnownOne) {
  Click(List().add_button);
  EXPECT_EQ(
      gtk_combo_box_get_active(GTK_COMBO_BOX(Widget("new_site_permission"))),
      GetParam().preset - 1);
  Click("new_site_cancel_button");
  EXPECT_EQ(Sites().size(), 3U);
  // As typed: not trimmed, not in lower case.
  AddSite(" New.Example", kAsk);
  AddSite("example.com", kBlock);
  EXPECT_THAT(Sites(), ElementsAre("shop.example.com", "a.example.org",
                                   "example.com", " New.Example"));
  EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDomains),
            "[shop.example.com a.example.org example.com  New.Example]");
  ExpectStored(" New.Example", kAsk);
  ExpectStored("example.com", kBlock);
}

TEST_P(SiteListTest, SortsByReversedNameAndByPermission) {
  Select(List().tree_view, {1});
  ChooseInList(GetParam().mode, kBlock);
  SortBy(GetParam().site_column);
  EXPECT_THAT(Sites(),
              ElementsAre("example.com", "shop.example.com", "a.example.org"));
  // The order outlives a change of the rows.
  AddSite("mail.example.com", kAllow);
  EXPECT_THAT(Sites(), ElementsAre("example.com", "mail.example.com",
                                   "shop.example.com", "a.example.org"));
  SortBy(GetParam().permission_column);
  EXPECT_EQ(Sites().front(), "a.example.org");
}

TEST_P(SiteListTest, RemovesSelectedSitesWithTheirData) {
  SortBy(GetParam().site_column);
  EXPECT_FALSE(IsSensitive(List().remove_button));
  Select(List().tree_view, {0, 2});
  Click(List().remove_button);
  EXPECT_FALSE(IsSensitive(List().remove_button));
  EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDomains), "[shop.example.com]");
  for (const char* site : {"example.com", "a.example.org"}) {
    EXPECT_FALSE(home_.Has(PanelHome::SettingsFileOf(site)));
    EXPECT_FALSE(home_.Has(data_[site]));
  }
  for (const int page : {kStoragePage, kPrivacyPage, kPlaybackPage}) {
    GoToPage(page);
  }
  for (const SitePermission& list : kSitePermissions) {
    EXPECT_THAT(Column(list.list_store, 0), ElementsAre("shop.example.com"));
  }
}

// A change is stored at once, but shown when the page has its turn.
TEST_P(SiteListTest, IsNotRefilledWhileAnotherPageIsCurrent) {
  const Names before = Column(List().list_store, GetParam().text_column);
  GoToPage(kAdvancedPage);
  Select(List().tree_view, {1});
  ChooseInList(GetParam().mode, kBlock);
  ExpectStored("a.example.org", kBlock);
  EXPECT_EQ(Column(List().list_store, GetParam().text_column), before);
  EXPECT_TRUE(IsSensitive(List().remove_button));
}

INSTANTIATE_TEST_SUITE_P(, SiteListTest, testing::ValuesIn(kLists),
                         [](const auto& param) {
                           return std::string(param.param.page_name);
                         });

using StorageListTest = PanelTest;

TEST_F(StorageListTest, SortsByBytesAndShowsNoneAfterBlock) {
  // The texts of the last two sort the other way round.
  home_.AddSites({"big", "empty", "small"});
  home_.AddData("big", 2 << 20);
  home_.AddData("small", 900 << 10);
  Start();
  gtk_tree_view_column_clicked(
      get_column(panel_->builder, "site_storage_used_column"));
  EXPECT_THAT(Column("site_storage_list", 0),
              ElementsAre("empty", "small", "big"));
  Select("site_storage_treeview", {2});
  ChooseInList(kStorageMode, kBlock);
  EXPECT_THAT(Column("site_storage_list", 0),
              ElementsAre("big", "empty", "small"));
  EXPECT_EQ(Column("site_storage_list", 1)[0], "none");
  EXPECT_EQ(home_.Stored("big", "klimit"), "-1");
}

TEST(DomainOrder, ReadsComponentsFromTheLast) {
  const struct {
    const char* domain;
    const char* reversed;
  } cases[] = {{"shop.example.com", "com.example.shop"},
               {"localhost", "localhost"},
               {".a..b.", "b.a"},
               {"...", ""},
               {"", ""}};
  for (const auto& c : cases) {
    EXPECT_EQ(reverse_domain_components(c.domain), c.reversed) << c.domain;
  }
}
