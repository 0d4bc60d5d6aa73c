#include <fcntl.h>

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
  EXPECT_TRUE(manager_->RemoveDomainInformation("never seen", true, true));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "c"));
  Begin({"a", "b", "a"});
  EXPECT_TRUE(manager_->RemoveDomainInformation("a", true, true));
  EXPECT_THAT(Listed(), ElementsAre("a", "b")) << "the later of two";
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

}  // namespace
