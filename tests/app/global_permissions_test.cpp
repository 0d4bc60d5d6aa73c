#include <gmock/gmock.h>

#include "app/notebook_pages.h"
#include "store/setting_keys.h"
#include "tests/app/panel_test.h"

using SASM::kCameraAllow;
using SASM::kCameraAlways;
using SASM::kDefaultCameraAlways;
using SASM::kDefaultStorageLimit;
using SASM::kDisallowP2PUplink;
using SASM::kP2PAlways;
using SASM::kStorageLimit;
using testing::ElementsAre;

class GlobalPermissionsTest : public PanelTest {
 protected:
  GlobalPermissionsTest() {
    home_.AddSites({"a.example", "b.example"});
    stored_data_ = home_.AddData("b.example", 10);
  }

  void ExpectStorageLimits(const char* limit) {
    EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDefaultStorageLimit), limit);
    EXPECT_EQ(home_.Stored("a.example", kStorageLimit), limit);
    EXPECT_EQ(home_.Stored("b.example", kStorageLimit), limit);
  }

  void ExpectCamera(const char* block_all, const char* always,
                    const char* allow) {
    EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDefaultCameraAlways),
              block_all);
    for (const char* site : {"a.example", "b.example"}) {
      EXPECT_EQ(home_.Stored(site, kCameraAlways), always);
      EXPECT_EQ(home_.Stored(site, kCameraAllow), allow);
    }
  }

  std::string stored_data_;
};

TEST_F(GlobalPermissionsTest, StorageChoiceReachesEverySite) {
  Start();
  EXPECT_TRUE(IsActive("storage_allow_radiobutton"));
  Choose("storage_prompt_radiobutton");
  ExpectStorageLimits("0");
  EXPECT_THAT(Column("site_storage_list", 3), ElementsAre("Ask me", "Ask me"));
  Choose("storage_allow_radiobutton");
  ExpectStorageLimits("100");
  EXPECT_TRUE(home_.Has(stored_data_));
}

TEST_F(GlobalPermissionsTest, BlockingStorageChangesNothingUnlessConfirmed) {
  Start();
  Choose("storage_prompt_radiobutton");
  const auto before = home_.Disk();
  for (const int response :
       {GTK_RESPONSE_CANCEL, GTK_RESPONSE_DELETE_EVENT, GTK_RESPONSE_NONE}) {
    Answer("deny_all_storage_prompt_dialog", response,
           [&] { Choose("storage_block_radiobutton"); });
    EXPECT_TRUE(IsActive("storage_prompt_radiobutton"));
  }
  EXPECT_EQ(home_.Disk(), before);
}

TEST_F(GlobalPermissionsTest, ConfirmedBlockDeletesDataOfEverySite) {
  Start();
  Answer("deny_all_storage_prompt_dialog", GTK_RESPONSE_OK,
         [&] { Choose("storage_block_radiobutton"); });
  ExpectStorageLimits("-1");
  EXPECT_FALSE(home_.Has(stored_data_));
  EXPECT_TRUE(IsActive("storage_block_radiobutton"));
  EXPECT_THAT(Column("site_storage_list", 1), ElementsAre("none", "none"));
}

TEST_F(GlobalPermissionsTest, BlockingCamerasAndBackLeavesEverySiteAtAsk) {
  Start("privacy");
  EXPECT_TRUE(IsActive("site_privacy_always_ask_rbutton"));
  Choose("site_privacy_always_deny_rbutton");
  ExpectCamera("true", "true", "false");
  EXPECT_THAT(Column("site_privacy_list", 1), ElementsAre("Block", "Block"));
  Select("site_privacy_treeview", {0});
  ChooseInList(kCameraAndMicMode,
               PermissionSetting::kPermissionStateAlwaysAllow);
  EXPECT_EQ(home_.Stored("a.example", kCameraAllow), "true");
  Choose("site_privacy_always_ask_rbutton");
  ExpectCamera("false", "false", "false");
}

TEST_F(GlobalPermissionsTest, BlockingPeersOverridesSitesWithoutChangingThem) {
  Start("playback");
  const auto expect_usable = [&](bool usable) {
    for (const char* id : {"add_site_p2p_setting_button", "site_p2p_treeview",
                           "site_p2p_button"}) {
      EXPECT_EQ(IsSensitive(id), usable) << id;
    }
  };
  expect_usable(true);
  Select("site_p2p_treeview", {1});
  ChooseInList(kPeerAssistedMode,
               PermissionSetting::kPermissionStateAlwaysAllow);
  Choose("site_p2p_always_deny_rbutton");
  EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDisallowP2PUplink), "true");
  EXPECT_EQ(home_.Stored("b.example", kP2PAlways), "true");
  EXPECT_THAT(Column("site_p2p_list", 1), ElementsAre("Block", "Block"));
  expect_usable(false);
  Choose("site_p2p_always_ask_rbutton");
  EXPECT_EQ(home_.Stored(PanelHome::kMaster, kDisallowP2PUplink), "false");
  EXPECT_THAT(Column("site_p2p_list", 1), ElementsAre("Ask me", "Allow"));
  expect_usable(true);
}
