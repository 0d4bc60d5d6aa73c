// Settings and deletions that reach all sites.
#include <filesystem>

#include "tests/end_to_end/end_to_end_test.h"

namespace {

constexpr char kAsk[] =
    "Ask me before allowing new sites to save information on this computer";
constexpr char kBlock[] =
    "Block all sites from storing information on this computer";
constexpr char kDeleteAll[] = "Delete All Site Data in Corvane Player";
constexpr char kSites[] = "Delete All Site Data and Settings";
constexpr char kLicences[] = "Delete All Audio and Video License Files";

}  // namespace

class AllSitesTest : public EndToEndTest {
 protected:
  AllSitesTest() {
    home_.AddSites({"a.example", "b.example"});
    data_ = home_.AddData("b.example", 9);
    home_.Write(cache_, "cached");
    home_.Write(licence_, "licence");
  }

  void ExpectLimits(const char* limit) {
    ExpectStored("a.example", "klimit", limit);
    ExpectStored("b.example", "klimit", limit);
    ExpectStored(kMaster, "defaultklimit", limit);
  }

  void DeleteAll(bool sites, bool licences) {
    Click("Delete All…");
    See(kDeleteAll);
    if (!sites) Click(kSites);
    if (licences) Click(kLicences);
    Click("Delete Data");
  }

  std::string data_;
  const std::string cache_ = std::string(PanelHome::kAssetCache) + "/a/b";
  const std::string licence_ = std::string(PanelHome::kLicences) + "/x/y";
};

TEST_F(AllSitesTest, StorageIsBlockedOnlyWhenConfirmed) {
  Start();
  Click(kAsk);
  ExpectLimits("0");
  Click(kBlock);
  See("Disable Local Storage");
  Click("Cancel");
  See(kMainWindow);
  const Accessible choice = Get({"radio button"}, kAsk);
  EXPECT_TRUE(choice.Is(Accessible::kChecked));
  EXPECT_TRUE(Eventually([&] { return choice.Is(Accessible::kFocused); }));
  ExpectLimits("0");
  EXPECT_TRUE(home_.Has(data_));
  Click(kBlock);
  See("Disable Local Storage");
  Click("Disable Local Storage");
  ExpectLimits("-1");
  Close();
  EXPECT_FALSE(home_.Has(data_));
  EXPECT_TRUE(home_.Has(cache_));
}

TEST_F(AllSitesTest, CamerasAreBlockedAndAskedForAgain) {
  Start("-p privacy");
  Click("Block all sites from using the camera and microphone");
  for (const char* site : {"a.example", "b.example"}) {
    ExpectStored(site, "always", "true");
    EXPECT_EQ(home_.Stored(site, "allow"), "false");
  }
  EXPECT_EQ(home_.Stored(kMaster, "defaultalways"), "true");
  Click(
      "Ask me when a site wants to use the camera or microphone (recommended)");
  ExpectStored("b.example", "always", "false");
  ExpectStored(kMaster, "defaultalways", "false");
}

TEST_F(AllSitesTest, LicencesAreReset) {
  Start("-p advanced");
  Click("Deauthorize This Computer…");
  See("Deauthorize This Computer");
  Click("Deauthorize");
  Close();
  EXPECT_FALSE(home_.Has(licence_));
  EXPECT_TRUE(home_.Has(data_));
}

class DeleteAllTest
    : public AllSitesTest,
      public testing::WithParamInterface<std::tuple<bool, bool>> {};

TEST_P(DeleteAllTest, DeletesWhatIsChecked) {
  const auto [sites, licences] = GetParam();
  Start();
  const auto before = home_.Disk();
  DeleteAll(sites, licences);
  See(kMainWindow);
  Close();
  EXPECT_EQ(home_.Has(data_), !sites);
  EXPECT_EQ(home_.Has(cache_), !sites);
  EXPECT_EQ(home_.Has(PanelHome::SettingsFileOf("a.example")), !sites);
  EXPECT_EQ(home_.Stored(kMaster, "domains"),
            sites ? "[]" : "[a.example b.example]");
  EXPECT_EQ(home_.Stored(kMaster, "defaultklimit"), "100");
  EXPECT_EQ(home_.Has(licence_), !licences);
  EXPECT_EQ(home_.Disk() == before, !sites && !licences);
}

INSTANTIATE_TEST_SUITE_P(SitesAndLicences, DeleteAllTest,
                         testing::Combine(testing::Bool(), testing::Bool()));

// The program reports each kind of data, and goes on.
TEST_F(AllSitesTest, SaysWhatCouldNotBeDeleted) {
  home_.Write("file", "");
  std::filesystem::remove_all(home_ / ".tessary/Corvane_Player");
  std::filesystem::rename(home_ / "file", home_ / ".tessary/Corvane_Player");
  Start();
  DeleteAll(true, true);
  for (const std::string kind : {"local storage", "license files"}) {
    const auto says_so = [&](const Accessible& node) {
      return node.Name().starts_with(
          "Corvane Player was unable to delete all " + kind);
    };
    EXPECT_TRUE(Eventually([&] {
      return !Accessible().FindAll(says_so).empty();
    })) << kind;
  }
  for (const char* kind : {"Storage", "Protected Content"}) {
    See(std::string("Unable to Delete Files – ") + kind);
    Press("ctrl+w");
    EXPECT_TRUE(Eventually([&] { return !window_.Is(Accessible::kShowing); }));
  }
  Close("(.*\n)*");
  EXPECT_FALSE(home_.Has(data_));
}
