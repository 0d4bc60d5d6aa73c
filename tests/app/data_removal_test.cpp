#include <gmock/gmock.h>
#include <sys/stat.h>

#include "store/setting_keys.h"
#include "tests/app/panel_test.h"
#include "tests/support/privileges.h"

using testing::IsEmpty;

namespace {

constexpr char kDialog[] = "clear_site_data_dialog";
constexpr char kSiteBox[] = "clear_site_data_checkbutton";
constexpr char kLicenceBox[] = "clear_drm_checkbutton";

constexpr char kSitesNotDeleted[] =
    "Unable to Delete Files: Corvane Player was unable to delete all local "
    "storage. The files may be locked by another program. Close all browsers "
    "or restart your computer, and try again.";
constexpr char kLicencesNotDeleted[] =
    "Unable to Delete Files: Corvane Player was unable to delete all license "
    "files. They may be locked by another program. Close all browsers or "
    "restart your computer, and try again.";

}  // namespace

class DataRemovalTest : public PanelTest {
 protected:
  DataRemovalTest() {
    home_.AddSites({"a.example", "b.example"});
    stored_ = home_.AddData("b.example", 10);
    home_.Write(kCache, "cached");
    home_.Write(kLicence, "licence");
  }

  void SetBox(const char* box, bool active) {
    gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(Widget(box)), active);
  }

  void ClearData(bool sites, bool licences, int response) {
    Answer(
        kDialog, response, [&] { Click("clear_site_data_button"); },
        [&] {
          EXPECT_TRUE(IsActive(kSiteBox));
          EXPECT_FALSE(IsActive(kLicenceBox));
          SetBox(kSiteBox, sites);
          SetBox(kLicenceBox, licences);
        });
  }

  void ExpectSites(bool exist) {
    EXPECT_EQ(home_.Has(stored_), exist);
    EXPECT_EQ(home_.Has(kCache), exist);
    EXPECT_EQ(home_.Has(PanelHome::SettingsFileOf("a.example")), exist);
    EXPECT_EQ(home_.Stored(PanelHome::kMaster, SASM::kDomains),
              exist ? "[a.example b.example]" : "[]");
    EXPECT_EQ(Column("site_storage_list", 0).size(), exist ? 2U : 0U);
    EXPECT_EQ(home_.Stored(PanelHome::kMaster, SASM::kDefaultStorageLimit),
              "100");
  }

  std::string stored_;
  const std::string kCache = std::string(PanelHome::kAssetCache) + "/a/b";
  const std::string kLicence = std::string(PanelHome::kLicences) + "/x/y";
};

class BoxesTest : public DataRemovalTest,
                  public testing::WithParamInterface<std::tuple<bool, bool>> {};

TEST_P(BoxesTest, DeletesWhatIsChecked) {
  const auto [sites, licences] = GetParam();
  Start();
  const auto before = home_.Disk();
  ClearData(sites, licences, GTK_RESPONSE_NONE);
  ClearData(sites, licences, GTK_RESPONSE_DELETE_EVENT);
  EXPECT_EQ(home_.Disk(), before);
  ClearData(sites, licences, GTK_RESPONSE_OK);
  ExpectSites(!sites);
  EXPECT_EQ(home_.Has(kLicence), !licences);
  EXPECT_THAT(Errors(), IsEmpty());
  EXPECT_EQ(home_.Disk() == before, !sites && !licences);
}

INSTANTIATE_TEST_SUITE_P(SitesAndLicences, BoxesTest,
                         testing::Combine(testing::Bool(), testing::Bool()));

TEST_F(DataRemovalTest, LicenceResetAsksFirst) {
  Start("advanced");
  const auto reset = [&] { Click("reset_drm_button"); };
  Answer("reset_drm_prompt_dialog", GTK_RESPONSE_CANCEL, reset);
  EXPECT_TRUE(home_.Has(kLicence));
  Answer("reset_drm_prompt_dialog", GTK_RESPONSE_OK, reset);
  EXPECT_FALSE(home_.Has(kLicence));
  EXPECT_TRUE(home_.Has(stored_));
}

// One dialog for each kind of data, open at once; the program goes on.
TEST_F(DataRemovalTest, SaysWhatCouldNotBeDeleted) {
  Start();
  const OrdinaryUser user(home_);
  for (const char* directory : {"/.tessary/Corvane_Player/AssetCache/a",
                                "/.tessary/Corvane_Player/APSPrivateData2/x"}) {
    ASSERT_EQ(chmod((home_.Path().string() + directory).c_str(), 0500), 0);
  }
  ClearData(true, true, GTK_RESPONSE_OK);
  EXPECT_THAT(Errors(), testing::UnorderedElementsAre(kSitesNotDeleted,
                                                      kLicencesNotDeleted));
  EXPECT_FALSE(home_.Has(stored_));
  EXPECT_TRUE(home_.Has(kCache));
  Answer("reset_drm_prompt_dialog", GTK_RESPONSE_OK,
         [&] { Click("reset_drm_button"); });
  EXPECT_EQ(Errors().size(), 3U);
}
