#include <chrono>
#include <sstream>

#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;
using namespace std::string_literals;

class StoreRemoval : public StoreTest {
 protected:
  bool HasSettings(const std::string& site) const {
    return home_.Has(TemporaryHome::SettingsFileOf(site));
  }
  bool HasData(const std::string& site) const {
    return home_.Has(Storage(site));
  }
};

TEST_F(StoreRemoval, OfOneSiteTakesWhatItIsAskedTo) {
  for (const bool settings : {false, true}) {
    for (const bool storage : {false, true}) {
      SCOPED_TRACE(settings * 2 + storage);
      Begin({"a", "b", "c", "b"});
      EXPECT_TRUE(manager_->RemoveDomainInformation("b", settings, storage));
      EXPECT_EQ(HasSettings("b"), !settings);
      EXPECT_EQ(HasData("b"), !storage);
      EXPECT_EQ(ListedOnDisk().size(), settings ? 3u : 4u);
      EXPECT_TRUE(HasSettings("a") && HasData("a"));
    }
  }
  EXPECT_TRUE(manager_->RemoveDomainInformation("never seen", true, true));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "b", "c")) << "the later of two";
}

TEST_F(StoreRemoval, OfTheMasterDomainTakesItsFileAlone) {
  Begin({"a"});
  const auto& master = SASM::SettingsManager::MasterDomain();
  EXPECT_EQ(manager_->SizeOfSettings(master), Master().size());
  EXPECT_TRUE(manager_->RemoveDomainInformation(master, true, true));
  EXPECT_FALSE(home_.Has(TemporaryHome::MasterFile()));
  EXPECT_TRUE(HasSettings("a") && HasData("a"));
  EXPECT_TRUE(SetNumber("defaultklimit", 5, master.c_str()));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a"));
}

TEST_F(StoreRemoval, AndEverythingElseRefusesWhatIsNoSiteName) {
  std::istringstream words(
      ". .. / //x /etc ../a a/.. a/./b ..// a/../../.. a/. ./a a/ a//b "
      "../#keep.example ___MASTER_DOMAIN a");
  TemporaryHome::Names names(std::istream_iterator<std::string>(words), {});
  home_.AddSites({"a"});
  WriteMaster(Entry("domains", Array(Flags(names))));
  names.back() = "";
  home_.Write(std::string(TemporaryHome::kSettings) + "/x", "x");
  Start();
  EXPECT_THAT(Listed(), ElementsAre("a"));
  const TemporaryHome::Snapshot before = home_.Take();
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(manager_->AddDomainWithDefaultSettings(name.c_str()));
    if (name.starts_with("___")) continue;
    EXPECT_FALSE(SetNumber("klimit", 1, name));
    EXPECT_FALSE(manager_->HasSetting("klimit", name.c_str()));
    EXPECT_FALSE(manager_->RemoveSettingWithKey("klimit", name.c_str()));
    EXPECT_FALSE(manager_->DeleteDomainStorage(name.c_str()));
    EXPECT_FALSE(manager_->DeleteDomainSettingsFile(name.c_str(), false));
    EXPECT_FALSE(manager_->RemoveDomainInformation(name.c_str(), true, true));
    EXPECT_EQ(manager_->SizeOfLocalStorage(name.c_str()), 0u);
    EXPECT_EQ(manager_->SizeOfSettings(name.c_str()), 0u);
  }
  EXPECT_EQ(home_.Take(), before);
}

TEST_F(StoreRemoval, OfASiteWithSlashesLeavesNoEmptyDirectory) {
  Begin({"a"});
  std::filesystem::create_directories(
      home_ / TemporaryHome::SettingsFileOf("b/empty directory of another"));
  for (const std::string name : {"a/b/c", "b/c/d", "___MASTER_DOMAIN/x", "...",
                                 "..a", "a..", "a b", "#", "~", "a/..."}) {
    SCOPED_TRACE(name);
    const std::vector<std::string> before = home_.List();
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings(name.c_str()));
    EXPECT_THAT(Listed(), ElementsAre("a", name));
    EXPECT_TRUE(manager_->RemoveDomainInformation(name.c_str(), true, true));
    EXPECT_EQ(home_.List(), before);
    home_.Write(Storage(name) + "/data", "x");
    EXPECT_GT(manager_->SizeOfLocalStorage(name.c_str()), 1u);
    EXPECT_TRUE(manager_->DeleteDomainStorage(name.c_str()));
    EXPECT_FALSE(home_.Has(Storage(name)));
  }
}

TEST_F(StoreRemoval, OfManySitesWritesTheListOnce) {
  Begin({"a", "b", "c", "b", "d"});
  {
    SASM::ListWriteGuard outer(&*manager_);
    SASM::ListWriteGuard inner(&*manager_);
    const TemporaryHome::Snapshot before = home_.Take();
    for (const char* site : {"b", "d"}) {
      EXPECT_TRUE(manager_->RemoveDomainInformation(site, true, true));
    }
    EXPECT_TRUE(manager_->IsListed("b") && !manager_->IsListed("d"));
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("e"));
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("d")) << "once more";
    EXPECT_TRUE(manager_->IsListed("d") && manager_->IsListed("e"));
    EXPECT_TRUE(manager_->RemoveDomainInformation("new", true, true));
    EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("new"));
    EXPECT_TRUE(inner.Finish());
    EXPECT_EQ(Master(), before.at(TemporaryHome::MasterFile()));
    EXPECT_TRUE(outer.Finish());
    EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "b", "c", "d", "e", "new"));
    home_.Write(TemporaryHome::MasterFile(), "untouched");
  }
  EXPECT_EQ(Master(), "untouched");
}

TEST_F(StoreRemoval, OfEverythingKeepsTheGlobalSettings) {
  Begin({"a", "b"});
  EXPECT_TRUE(SetNumber("defaultklimit", 5, "___MASTER_DOMAIN"));
  home_.Write(std::string(TemporaryHome::kSharedObjects) + "/2nd/c/data", "x");
  home_.Write(std::string(TemporaryHome::kSettings) + "/stray", "x");
  const auto remove = [this](bool settings, bool storage) {
    EXPECT_TRUE(
        manager_->RemoveAllSettingsAndOrLocalStorage(settings, storage));
    return home_.List().size();
  };
  const std::size_t all = home_.List().size();
  EXPECT_EQ(remove(false, false), all);
  EXPECT_EQ(remove(false, true), all - 8);
  EXPECT_TRUE(fs::is_empty(home_ / TemporaryHome::kSharedObjects));
  EXPECT_EQ(remove(true, false), all - 13) << "the master file stays";
  EXPECT_THAT(ListedOnDisk(), IsEmpty());
  EXPECT_EQ(Held("defaultklimit"), "defaultklimit=5");
}

TEST_F(StoreRemoval, FollowsALinkToTheDataAndNoneBelow) {
  const std::string base = ".orbelline/Corvane_Player";
  const std::string settings = "/tessary.example";
  const auto count = [this] {
    return std::distance(fs::recursive_directory_iterator(home_ / "elsewhere"),
                         {});
  };
  for (const std::string& below : {""s, settings, "/#SharedObjects"s}) {
    SCOPED_TRACE(below);
    home_.Restore({});
    Begin({"a"});
    fs::rename(home_ / (base + below), home_ / "elsewhere");
    fs::create_directory_symlink(home_ / "elsewhere", home_ / (base + below));
    testing::internal::CaptureStderr();
    Start();
    EXPECT_EQ(manager_->AddDomainWithDefaultSettings("b"), below != settings);
    const auto before = count();
    EXPECT_EQ(manager_->RemoveAllSettingsAndOrLocalStorage(true, true),
              below.empty());
    EXPECT_EQ(before == count(), !below.empty());
    (void)testing::internal::GetCapturedStderr();
  }
}

TEST_F(StoreRemoval, ByAgeForgetsTheGlobalSettings) {
  Begin({"old", "new"});
  const auto then = fs::file_time_type::clock::now() - std::chrono::hours(2);
  fs::last_write_time(home_ / TemporaryHome::SettingsFileOf("old"), then);
  fs::last_write_time(home_ / (Storage("old") + "/data"), then);
  const auto remove = [this](bool settings, bool storage) {
    return manager_->RemoveAllSettingsAndOrLocalStorageForTimeRange(
        settings, storage, 3600, 14400);
  };
  EXPECT_TRUE(remove(false, true));
  EXPECT_TRUE(HasData("new") && !HasData("old") && HasSettings("old"));
  EXPECT_TRUE(remove(true, false));
  EXPECT_TRUE(HasSettings("new") && !HasSettings("old"));
  EXPECT_EQ(Master(), File("settings"));
  EXPECT_EQ(Held("defaultklimit"), "none");
  EXPECT_THAT(Listed(), IsEmpty()) << "which loads the defaults again";
  EXPECT_EQ(Master(), DefaultMasterFile());
}

}  // namespace
