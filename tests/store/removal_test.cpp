#include <chrono>

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
