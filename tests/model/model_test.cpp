// Setting objects over a store in a temporary home.
#include <cmath>
#include <cstdlib>

#include "model/storage_setting.h"
#include "tests/support/call_hooks.h"
#include "tests/support/store_test.h"

namespace {

using namespace image;
using State = PermissionSetting::_SettingsPermissionState;
constexpr auto kNone = PermissionSetting::kPermissionStateNone;
constexpr auto kBlock = PermissionSetting::kPermissionStateAlwaysDeny;
constexpr auto kAsk = PermissionSetting::kPermissionStateAlwaysAsk;
constexpr auto kAllow = PermissionSetting::kPermissionStateAlwaysAllow;

class Setting : public StoreTest {
 protected:
  Setting() { setenv("LC_ALL", "C", 1); }
  ~Setting() override { SettingBase::mSettingsManager = nullptr; }

  void BeginModel(std::initializer_list<std::string> sites) {
    Begin(sites);
    SettingBase::mSettingsManager = &*manager_;
  }
  // With those entries in the file of the site "a".
  void BeginSite(const Bytes& entries) {
    home_.Write(TemporaryHome::SettingsFileOf("a"), File("n", entries));
    BeginModel({});
  }
  static StorageSetting Of(const char* site) { return {"klimit", site}; }
  bool HasData(const char* site) const { return home_.Has(Storage(site)); }
};

using StorageLimit = Setting;

TEST_F(Setting, OfAnotherTypeReadsAsMissing) {
  const std::tuple<Bytes, double, bool, bool> cases[] = {
      {Entry("k", Number(2.5)), 2.5, false, false},
      {Entry("k", Bool(1)), -1, true, false},
      {Entry("k", String("true")), -1, false, false},
      {Entry("k", Array()), -1, false, true},
      {"", -1, false, false}};
  for (const auto& [entry, number, boolean, is_list] : cases) {
    SCOPED_TRACE(entry.size());
    BeginSite(entry);
    SettingBase setting("k", "a");
    EXPECT_EQ(setting.getDoubleValue(), number);
    EXPECT_EQ(setting.getBoolValue("k"), boolean);
    EXPECT_EQ(setting.getVectorValue() != nullptr, is_list);
  }
}

TEST_F(Setting, PermissionIsWrittenAlwaysFirst) {
  const std::tuple<State, const char*, const char*> cases[] = {
      {kAllow, "always=true", "always=true allow=true"},
      {kAsk, "always=false allow=true", "always=false allow=false"},
      {kBlock, "always=true allow=false", "always=true allow=false"},
      {kNone, "always=true allow=false", "always=true allow=false"},
  };
  BeginSite("");
  PermissionSetting setting(kPermissions[kCamera], "a");
  EXPECT_EQ(setting.getState(), kAsk);
  for (const auto& [state, first, then] : cases) {
    SCOPED_TRACE(then);
    std::string before;  // the last file that goes
    before_call = [&](unsigned int calls, auto&) {
      if (calls == faults::kUnlink) before = SiteOnDisk("a");
    };
    setting.setState(state);
    before_call = nullptr;
    EXPECT_EQ(before, first);
    EXPECT_EQ(SiteOnDisk("a"), then);
    EXPECT_EQ(setting.getState(), state == kNone ? kBlock : state);
  }
}

TEST_F(StorageLimit, ShowsWhateverNumberIsStored) {
  const std::tuple<double, State, int, int, const char*> cases[] = {
      {-1, kBlock, 0, -1, "Don't ask"},
      {0, kAsk, 0, 0, "Never"},
      {10, kAllow, 1, 1, "10 KB"},
      {10.5, kAllow, 2, 2, "100 KB"},
      {1024, kAllow, 3, 3, "1 MB"},
      {1024.5, kAllow, 4, 4, "10 MB"},
      {10240.5, kAllow, 5, 5, "Unlimited"},
      {-2, kAllow, 5, 5, "Unlimited"},
      {-1.5, kBlock, 0, 0, "Never"},
      {HUGE_VAL, kAllow, 5, 5, "Unlimited"},
      {std::nan(""), kAsk, 0, 0, "Never"},
  };
  BeginModel({});
  for (const auto& [stored, state, slider, combobox, label] : cases) {
    SCOPED_TRACE(stored);
    StorageSetting setting = Of("a");
    setting.setSliderSetting(3).setDontAsk(stored == -1);
    EXPECT_EQ(setting.getValue(), stored == -1 ? -1 : 0);
    setting.setValue(stored);
    EXPECT_EQ(setting.getPermissionState(), state);
    EXPECT_EQ(setting.getSliderSetting(), slider);
    EXPECT_EQ(setting.getComboboxSetting(), combobox);
    EXPECT_STREQ(setting.getSliderLabel(), label);
  }
}

TEST_F(StorageLimit, StagesAPositionBeforeAPermission) {
  const std::tuple<int, bool, bool, double> cases[] = {
      {-1, true, true, -1},    {0, true, true, 0},   {1, true, false, 10},
      {3, false, false, 1024}, {5, false, true, -2}, {7, false, true, 0},
      {-2, true, false, -1}};
  BeginModel({"a"});
  for (const auto& [position, is_smaller, is_less_than_used, stored] : cases) {
    SCOPED_TRACE(position);
    StorageSetting setting = Of("a");
    setting.setValue(50);
    setting.setSliderSetting(2);
    EXPECT_FALSE(setting.isSettingLessThanOldValue()) << "the same";
    setting.setSliderSetting(position);
    EXPECT_EQ(setting.isLessThanSpaceUsed(), is_less_than_used);
    setting.setPermissionState(kBlock);
    EXPECT_EQ(setting.isSettingLessThanOldValue(), is_smaller);
    EXPECT_TRUE(setting.commit());
    EXPECT_EQ(setting.getValue(), stored);
    // A position deletes no data. -2 is not a position: the permission counts.
    EXPECT_EQ(HasData("a"), position != -2);
  }
}

TEST_F(StorageLimit, ReachesListedSitesAndTheirDataWhenCommitted) {
  const std::pair<State, double> cases[] = {
      {kAllow, 100}, {kAsk, 0}, {kBlock, -1}};
  const auto& master = SASM::SettingsManager::MasterDomain();
  BeginModel({"a", "b", "other"});
  EXPECT_TRUE(Of("other").setPermissionState(kBlock).commit());
  EXPECT_TRUE(!HasData("other") && HasData("a") && HasData("b"));
  for (const auto& [state, stored] : cases) {
    SCOPED_TRACE(stored);
    std::string order;
    before_call = [&](unsigned int, const std::filesystem::path& path) {
      if (path.extension() != ".sol") return;
      order += path.parent_path().filename().string() + " ";
    };
    StorageSetting of_all("defaultklimit", master);
    EXPECT_TRUE(of_all.setPermissionState(state).commit());
    before_call = nullptr;
    EXPECT_EQ(order, "sys #a #b #other ");
    EXPECT_EQ(of_all.getValue(), stored);
    for (const char* site : {"a", "b"}) {
      EXPECT_EQ(Of(site).getValue(), stored);
      EXPECT_EQ(HasData(site), state != kBlock);
    }
  }
}

TEST_F(StorageLimit, FormatsTheSpaceUsed) {
  constexpr double kGB = 1 << 30;
  const std::pair<double, const char*> cases[] = {
      {0, "none"},
      {1023, "1023 bytes"},
      {1535, "1 kB"},
      {1536, "2 kB"},
      {1048576, "1.00 MB"},
      {kGB - 1, "1024.00 MB"},
      {18446744073709551616.0, "17179869184.00 GB"},
      {std::nan(""), "none"}};
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(StorageSetting::TextOfSpace(bytes), text) << bytes;
  }
  BeginModel({"a"});
  const std::string whole = StorageSetting::TextOfSpace(Of("a").spaceUsed());
  const std::pair<int, std::string> cuts[] = {
      {80, whole}, {3, whole.substr(0, 2)}, {1, ""}, {-1, "untouched"}};
  for (const auto& [size, text] : cuts) {
    char buffer[80] = "untouched";
    Of("a").formatSpaceUsed(buffer, size);
    EXPECT_EQ(buffer, text) << size;
  }
}

}  // namespace
