#include "tests/support/privileges.h"
#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

using SiteSettings = StoreTest;

TEST_F(SiteSettings, GetAFileWhenTheyAreOnlyAskedFor) {
  Start();
  EXPECT_FALSE(manager_->HasSetting("klimit", "new.example"));
  EXPECT_EQ(SiteFile("new.example"), File("new.example/settings"));
  EXPECT_THAT(Listed(), IsEmpty());

  home_.Write(TemporaryHome::SettingsFileOf("broken"), "garbage");
  EXPECT_EQ(Held("klimit", "broken"), "none");
  EXPECT_EQ(SiteFile("broken"), File("broken/settings"));
}

TEST_F(SiteSettings, AreWrittenWithEveryChange) {
  Begin({"a"});
  EXPECT_TRUE(SetNumber("klimit", 5, "a"));
  EXPECT_EQ(SiteOnDisk("a"),
            "p2pallow=false always=false p2palways=false klimit=5 "
            "allow=false");
  // In bucket 1: behind "p2pallow", before "p2palways".
  for (const char* key : {"always", "no such key"}) {
    home_.Write(TemporaryHome::SettingsFileOf("a"), "");
    EXPECT_TRUE(manager_->RemoveSettingWithKey(key, "a"));
    EXPECT_EQ(SiteOnDisk("a"),
              "p2pallow=false p2palways=false klimit=5 allow=false");
  }
  EXPECT_EQ(Held("p2pallow", "a"), "p2pallow=false");
}

TEST_F(SiteSettings, OfANewSiteFollowTheMasterSettings) {
  const struct {
    Bytes limit;
    Bytes always;
    std::string site;
  } cases[] = {
      {Entry("defaultklimit", Number(7)), Entry("defaultalways", Bool(1)),
       "always=true p2pallow=false p2palways=false klimit=7 allow=false"},
      {Entry("defaultklimit", Bool(1)), Entry("defaultalways", Number(1)),
       "always=false p2pallow=false p2palways=false klimit=100 allow=false"},
      {Entry("defaultklimit", Array()), Entry("defaultalways", String("true")),
       "always=false p2pallow=false p2palways=false klimit=100 allow=false"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.site);
    fs::remove_all(home_ / TemporaryHome::kSettings);
    WriteMaster(c.limit + c.always);
    Start();
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("a"));
    EXPECT_EQ(SiteOnDisk("a"), c.site);
    EXPECT_THAT(ListedOnDisk(), ElementsAre("a"));
  }
  const SASM::SimpleString master = SASM::SettingsManager::MasterDomain();
  EXPECT_TRUE(manager_->RemoveSettingWithKey("defaultklimit", master));
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("b"));
  EXPECT_EQ(Held("klimit", "b"), "klimit=100");
  EXPECT_TRUE(SetNumber("defaultklimit", -2, master.c_str()));
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("c"));
  EXPECT_EQ(Held("klimit", "c"), "klimit=-2");
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "b", "c"));
}

TEST_F(SiteSettings, ThatAreThereStayWhenTheSiteIsAdded) {
  Begin({"listed"});
  home_.Write(TemporaryHome::SettingsFileOf("known"),
              File("n", Entry("klimit", Number(5)) + Entry("x", Bool(1))));
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("known"));
  EXPECT_THAT(SiteOnDisk("known"), testing::HasSubstr("klimit=5 "));
  EXPECT_THAT(SiteOnDisk("known"), testing::HasSubstr(" allow=false"));

  home_.Write(TemporaryHome::SettingsFileOf("listed"), "untouched");
  home_.Write(TemporaryHome::MasterFile(), "untouched");
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("listed"));
  EXPECT_EQ(SiteFile("listed"), "untouched");
  EXPECT_EQ(Master(), "untouched");
}

TEST_F(SiteSettings, SayWhenAStepOfWritingFails) {
  const std::string old = File("a/settings");
  std::optional<LoweredLimit> full_disk;
  const auto no = [](const std::string&) { return false; };
  const struct {
    const char* failing_step;
    HomeFileManager::Hook creation;
    HomeFileManager::Hook removal;
    bool written;
    std::optional<std::string> left;
  } cases[] = {
      {"creating the directory, which is there", no, nullptr, true,
       File("a/settings", Entry("klimit", Number(5)))},
      {"removing the old file", nullptr, no, false, old},
      {"opening the new one",
       [](const std::string& directory) {
         fs::remove_all(directory);
         return false;
       },
       nullptr, false, std::nullopt},
      {"writing it all", nullptr,
       [&](const std::string&) {
         full_disk.emplace(RLIMIT_FSIZE, 20);
         return true;
       },
       false, File("a/settings", Entry("klimit", Number(5))).substr(0, 20)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.failing_step);
    home_.Write(TemporaryHome::SettingsFileOf("a"), old);
    Start();
    EXPECT_EQ(Held("klimit", "a"), "none");
    files_.before_creation = c.creation;
    files_.before_removal = c.removal;
    const bool written = SetNumber("klimit", 5, "a");
    full_disk.reset();
    files_.before_creation = files_.before_removal = nullptr;
    EXPECT_EQ(written, c.written);
    EXPECT_EQ(Held("klimit", "a"), "klimit=5") << "memory has it";
    const bool has_file = home_.Has(TemporaryHome::SettingsFileOf("a"));
    ASSERT_EQ(has_file, c.left.has_value());
    if (has_file) {
      EXPECT_EQ(SiteFile("a"), *c.left);
    }
  }
}

TEST_F(SiteSettings, AreNotListedWhenTheyCouldNotBeWritten) {
  Start();
  const auto refuse = [this](const std::string& file) {
    files_.before_removal = [path = home_ / file](const std::string& asked) {
      return asked != path;
    };
  };
  refuse(TemporaryHome::SettingsFileOf("a"));
  EXPECT_FALSE(manager_->AddDomainWithDefaultSettings("a"));
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_EQ(Held("klimit", "a"), "klimit=100");
  refuse(TemporaryHome::MasterFile());
  EXPECT_FALSE(manager_->AddDomainWithDefaultSettings("b"));
  EXPECT_THAT(Listed(), ElementsAre("b"));
  EXPECT_THAT(ListedOnDisk(), IsEmpty());
  EXPECT_EQ(SiteFile("b"), DefaultSiteFile("b"));
}

}  // namespace
