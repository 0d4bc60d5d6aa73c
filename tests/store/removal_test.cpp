#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

class StoreRemoval : public StoreTest {
 protected:
  bool HasSettings(const std::string& site) const {
    return home_.Has(TemporaryHome::SettingsFileOf(site));
  }
  bool HasData(const std::string& site) const {
    return home_.Has(Storage(site));
  }
  HomeFileManager::Hook Refuse(const std::string& path) const {
    return [refused = home_ / path](const std::string& asked) {
      return asked != refused;
    };
  }
};

TEST_F(StoreRemoval, OfOneSiteTakesWhatItIsAskedTo) {
  const struct {
    bool settings;
    bool storage;
  } cases[] = {{false, false}, {false, true}, {true, false}, {true, true}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.settings * 2 + c.storage);
    fs::remove_all(home_ / ".orbelline");
    Begin({"a", "b", "c"});
    EXPECT_TRUE(manager_->RemoveDomainInformation("b", c.settings, c.storage));
    EXPECT_EQ(HasSettings("b"), !c.settings);
    EXPECT_EQ(HasData("b"), !c.storage);
    EXPECT_EQ(ListedOnDisk().size(), c.settings ? 2u : 3u);
    EXPECT_TRUE(HasSettings("a") && HasData("a"));
  }
  EXPECT_THAT(Listed(), ElementsAre("a", "c"));
  EXPECT_TRUE(manager_->RemoveDomainInformation("never seen", true, true));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "c"));
}

TEST_F(StoreRemoval, TakesTheLaterOfTwoEqualNames) {
  Begin({"a", "b", "a"});
  EXPECT_TRUE(manager_->RemoveDomainInformation("a", true, true));
  EXPECT_THAT(Listed(), ElementsAre("a", "b"));
}

TEST_F(StoreRemoval, LeavesTheValuesForASiteThatComesBack) {
  Begin({"a"});
  EXPECT_TRUE(SetNumber("klimit", 5, "a"));
  EXPECT_TRUE(manager_->RemoveDomainInformation("a", true, true));
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings("a"));
  EXPECT_THAT(SiteOnDisk("a"), testing::HasSubstr("klimit=5"));
}

TEST_F(StoreRemoval, StopsAtTheStepThatFails) {
  Begin({"a"});
  const std::string directory = std::string(TemporaryHome::kSettings) + "/#a";
  for (const std::string& refused :
       {Storage("a"), directory, TemporaryHome::MasterFile()}) {
    SCOPED_TRACE(refused);
    files_.before_removal = Refuse(refused);
    EXPECT_FALSE(manager_->RemoveDomainInformation("a", true, true));
    EXPECT_EQ(HasData("a"), refused == Storage("a"));
    EXPECT_EQ(HasSettings("a"), refused != TemporaryHome::MasterFile());
    EXPECT_THAT(ListedOnDisk(), ElementsAre("a"));
  }
}

TEST_F(StoreRemoval, OfTheMasterDomainTakesItsFileAlone) {
  Begin({"a"});
  const auto& master = SASM::SettingsManager::MasterDomain();
  EXPECT_TRUE(manager_->RemoveDomainInformation(master, true, true));
  EXPECT_FALSE(home_.Has(TemporaryHome::MasterFile()));
  EXPECT_TRUE(HasSettings("a") && HasData("a"));
  EXPECT_TRUE(SetNumber("defaultklimit", 5, master.c_str()));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a"));
}

TEST_F(StoreRemoval, RefusesNamesThatLeadOutside) {
  Begin({"a"});
  const std::string precious = std::string(TemporaryHome::kSettings) + "/x";
  home_.Write(precious, "x");
  const std::vector<std::string> before = home_.List();
  for (const char* name : {"", ".", "..", "/etc", "../a", "a/..", "a/./b",
                           "a/../../..", "..//", "a/.", "./a"}) {
    SCOPED_TRACE(name);
    EXPECT_FALSE(manager_->DeleteDomainStorage(name));
    EXPECT_FALSE(manager_->DeleteDomainSettingsFile(name, false));
    EXPECT_FALSE(manager_->RemoveDomainInformation(name, true, false));
    EXPECT_FALSE(manager_->RemoveDomainInformation(name, true, true));
    EXPECT_EQ(manager_->SizeOfLocalStorage(name), 0u);
    EXPECT_EQ(manager_->SizeOfSettings(name), 0u);
  }
  EXPECT_EQ(home_.List(), before);
  for (const std::string name : {"a/b", "...", "..a", "a..", "a b", "#", "~"}) {
    SCOPED_TRACE(name);
    home_.Write(Storage(name) + "/data", "x");
    EXPECT_GT(manager_->SizeOfLocalStorage(name.c_str()), 1u);
    EXPECT_TRUE(manager_->DeleteDomainStorage(name.c_str()));
    EXPECT_FALSE(home_.Has(Storage(name)));
  }
}

TEST_F(StoreRemoval, OfEverythingKeepsTheGlobalSettings) {
  Begin({"a", "b"});
  const auto& master = SASM::SettingsManager::MasterDomain();
  EXPECT_TRUE(SetNumber("defaultklimit", 5, master.c_str()));
  home_.Write(std::string(TemporaryHome::kSharedObjects) + "/2nd/c/data", "x");
  home_.Write(std::string(TemporaryHome::kSettings) + "/stray", "x");
  const std::vector<std::string> before = home_.List();
  EXPECT_TRUE(manager_->RemoveAllSettingsAndOrLocalStorage(false, false));
  EXPECT_EQ(home_.List(), before);

  EXPECT_TRUE(manager_->RemoveAllSettingsAndOrLocalStorage(false, true));
  EXPECT_TRUE(fs::is_empty(home_ / TemporaryHome::kSharedObjects));
  EXPECT_TRUE(HasSettings("a"));
  EXPECT_TRUE(manager_->RemoveAllSettingsAndOrLocalStorage(true, false));
  EXPECT_THAT(ListedOnDisk(), IsEmpty());
  EXPECT_EQ(Held("defaultklimit"), "defaultklimit=5");
  EXPECT_EQ(std::distance(fs::recursive_directory_iterator(
                              home_ / TemporaryHome::kSettings),
                          {}),
            1)
      << "the master settings file";
}

TEST_F(StoreRemoval, OfEverythingGoesOnAfterAFailure) {
  Begin({"a"});
  const std::string root = TemporaryHome::kSharedObjects;
  home_.Write(root + "/2nd/c", "x");
  for (const std::string& refused :
       {std::string(TemporaryHome::kSettings), root + "/2nd"}) {
    SCOPED_TRACE(refused);
    files_.before_removal = Refuse(refused);
    EXPECT_FALSE(manager_->RemoveAllSettingsAndOrLocalStorage(true, true));
    EXPECT_FALSE(home_.Has(root + "/XYZ"));
    EXPECT_THAT(ListedOnDisk(), IsEmpty());
    home_.Write(root + "/2nd/c", "x");
    home_.Write(root + "/XYZ/c", "x");
  }
}

TEST_F(StoreRemoval, ByAgeForgetsTheGlobalSettings) {
  Begin({"old", "young"});
  const auto age = [this](const std::string& site, long seconds) {
    const timespec then = {std::time(nullptr) - seconds, 0};
    const timespec times[] = {then, then};
    for (const std::string& name :
         {TemporaryHome::SettingsFileOf(site), Storage(site) + "/data"}) {
      EXPECT_EQ(utimensat(AT_FDCWD, (home_ / name).c_str(), times, 0), 0);
    }
  };
  age("old", 9000);
  age("young", 500);
  const auto remove = [this](bool settings, bool storage) {
    return manager_->RemoveAllSettingsAndOrLocalStorageForTimeRange(
        settings, storage, 100, 3600);
  };
  EXPECT_TRUE(remove(false, true));
  EXPECT_TRUE(HasData("old") && !HasData("young") && HasSettings("young"));
  EXPECT_TRUE(remove(true, false));
  EXPECT_TRUE(HasSettings("old") && !HasSettings("young"));
  EXPECT_EQ(Master(), File("settings"));
  EXPECT_EQ(Held("defaultklimit"), "none");
  EXPECT_THAT(Listed(), IsEmpty()) << "which loads the defaults again";
  EXPECT_EQ(Master(), DefaultMasterFile());
}

TEST_F(StoreRemoval, OfTheAssetCacheAndSizes) {
  Begin({"a"});
  home_.Write(std::string(TemporaryHome::kAssetCache) + "/x/y", "x");
  home_.Write(std::string(TemporaryHome::kLicences) + "/x", "x");
  EXPECT_TRUE(manager_->RemoveAssetCache());
  EXPECT_FALSE(home_.Has(TemporaryHome::kAssetCache));
  EXPECT_TRUE(home_.Has(TemporaryHome::kLicences));

  const auto own = [this](const std::string& directory) {
    struct stat info = {};
    EXPECT_EQ(stat((home_ / directory).c_str(), &info), 0);
    return static_cast<std::uint64_t>(info.st_size);
  };
  const auto& master = SASM::SettingsManager::MasterDomain();
  EXPECT_EQ(manager_->SizeOfLocalStorage("a"), own(Storage("a")) + 9);
  EXPECT_EQ(manager_->SizeOfLocalStorage(master), 0u);
  EXPECT_EQ(manager_->SizeOfSettings("a"),
            own(std::string(TemporaryHome::kSettings) + "/#a") +
                SiteFile("a").size());
  EXPECT_EQ(manager_->SizeOfSettings(master), Master().size());
}

}  // namespace
