// Setting objects over a store of the test's own.
#include <cmath>
#include <cstdlib>
#include <limits>

#include "model/storage_setting.h"
#include "tests/support/store_test.h"

namespace {

using namespace image;
using testing::ElementsAre;
using State = PermissionSetting::_SettingsPermissionState;
constexpr auto kNone = PermissionSetting::kPermissionStateNone;
constexpr auto kBlock = PermissionSetting::kPermissionStateAlwaysDeny;
constexpr auto kAsk = PermissionSetting::kPermissionStateAlwaysAsk;
constexpr auto kAllow = PermissionSetting::kPermissionStateAlwaysAllow;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

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
  static StorageSetting OfMaster() {
    return {"defaultklimit", SASM::SettingsManager::MasterDomain()};
  }
  bool HasData(const std::string& site) const {
    return home_.Has(Storage(site));
  }
};

using StorageLimit = Setting;

TEST_F(Setting, OfAnotherTypeReadsAsIfItWereMissing) {
  const struct {
    Bytes value;
    double number;
    bool boolean;
    bool is_list;
  } cases[] = {{Number(2.5), 2.5, false, false},
               {Bool(1), -1, true, false},
               {String("true"), -1, false, false},
               {Array(Element("a", Bool(1))), -1, false, true},
               {"", -1, false, false}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.value.size());
    BeginSite(c.value.empty() ? "" : Entry("k", c.value));
    SettingBase setting("k", "a");
    EXPECT_EQ(setting.getDoubleValue(), c.number);
    EXPECT_EQ(setting.getBoolValue("k"), c.boolean);
    EXPECT_EQ(setting.getVectorValue() != nullptr, c.is_list);
  }
}

TEST_F(Setting, PermissionIsReadFromTwoBooleans) {
  const struct {
    Bytes always;
    Bytes allow;
    int state;
  } cases[] = {{"", "", 2},
               {"", Bool(1), 2},
               {Bool(0), Bool(1), 2},
               {Bool(1), "", 1},
               {Bool(1), Bool(0), 1},
               {Bool(1), Bool(1), 3},
               {Number(1), Bool(1), 2},
               {Bool(1), String("true"), 1}};
  const auto entry = [](const char* key, const Bytes& value) {
    return value.empty() ? "" : Entry(key, value);
  };
  for (const auto& c : cases) {
    BeginSite(entry("p2palways", c.always) + entry("p2pallow", c.allow));
    PermissionSetting setting(PermissionSetting::kPeerAssistedNetworking, "a");
    EXPECT_EQ(setting.getState(), c.state) << &c - cases;
  }
}

TEST_F(Setting, PermissionIsWrittenAlwaysFirst) {
  const struct {
    State state;
    const char* after_one;
    const char* after_two;
  } cases[] = {
      {kAllow, "always=true", "always=true allow=true"},
      {kAsk, "always=false allow=true", "always=false allow=false"},
      {kBlock, "always=true allow=false", "always=true allow=false"},
      {kNone, "always=true allow=false", "always=true allow=false"},
  };
  BeginModel({});
  PermissionSetting setting(PermissionSetting::kCameraAndMic, "a");
  (void)setting.getState();  // makes the file
  for (const auto& c : cases) {
    SCOPED_TRACE(c.after_two);
    std::vector<std::string> seen;
    files_.before_removal = [&](const std::string&) {
      seen.push_back(SiteOnDisk("a"));
      return true;
    };
    setting.setState(c.state);
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[1], c.after_one);
    EXPECT_EQ(SiteOnDisk("a"), c.after_two);
  }
}

TEST_F(StorageLimit, ShowsWhateverNumberIsStored) {
  const struct {
    double stored;
    State state;
    int slider;
    int combobox;
    const char* label;
  } cases[] = {
      {-1, kBlock, 0, -1, "Don't ask"},
      {0, kAsk, 0, 0, "Never"},
      {0.5, kAllow, 1, 1, "10 KB"},
      {10.5, kAllow, 2, 2, "100 KB"},
      {1024, kAllow, 3, 3, "1 MB"},
      {1024.5, kAllow, 4, 4, "10 MB"},
      {10240.5, kAllow, 5, 5, "Unlimited"},
      {-2, kAllow, 5, 5, "Unlimited"},
      {-1.5, kBlock, 0, 0, "Never"},
      {1e300, kAllow, 5, 5, "Unlimited"},
      {kInfinity, kAllow, 5, 5, "Unlimited"},
      {-kInfinity, kBlock, 0, 0, "Never"},
      {std::nan(""), kAsk, 0, 0, "Never"},
  };
  BeginModel({});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stored);
    StorageSetting setting = Of("a");
    setting.setValue(c.stored);
    EXPECT_EQ(setting.getPermissionState(), c.state);
    EXPECT_EQ(setting.getSliderSetting(), c.slider);
    EXPECT_EQ(setting.getComboboxSetting(), c.combobox);
    EXPECT_STREQ(setting.getSliderLabel(), c.label);
  }
  EXPECT_EQ(Of("never seen").getPermissionState(), kBlock);
}

TEST_F(StorageLimit, StoresThePositionThatIsStaged) {
  const struct {
    int position;
    double stored;
    const char* label;
  } cases[] = {{-1, -1, "Don't ask"}, {0, 0, "Never"},     {1, 10, "10 KB"},
               {2, 100, "100 KB"},    {3, 1024, "1 MB"},   {4, 10240, "10 MB"},
               {5, -2, "Unlimited"},  {7, 0, "Undefined"}, {-2, 50, "100 KB"}};
  BeginModel({"a"});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.position);
    StorageSetting setting = Of("a");
    setting.setValue(50);
    setting.setSliderSetting(c.position).setPermissionState(kBlock);
    EXPECT_STREQ(setting.getSliderLabel(), c.label);
    if (c.position == -2) continue;  // counts as none
    EXPECT_EQ(setting.getSliderSetting(), c.position);
    EXPECT_EQ(setting.getComboboxSetting(), c.position);
    EXPECT_TRUE(setting.commit());
    EXPECT_EQ(setting.getValue(), c.stored);
    EXPECT_TRUE(HasData("a"));
    EXPECT_EQ(setting.getPermissionState(), kBlock) << "stays staged";
  }
}

TEST_F(StorageLimit, OfOneSiteTakesItsDataWhenItBlocks) {
  BeginModel({"a", "b"});
  for (const State state : {kNone, kAsk, kAllow, kBlock}) {
    EXPECT_TRUE(Of("a").setPermissionState(state).commit());
    EXPECT_EQ(HasData("a"), state != kBlock) << state;
  }
  EXPECT_TRUE(HasData("b"));
  EXPECT_THAT(ListedOnDisk(), ElementsAre("a", "b"));
}

TEST_F(StorageLimit, OfTheMasterDomainReachesEverySite) {
  const struct {
    State state;
    double stored;
  } cases[] = {{kAllow, 100}, {kAsk, 0}, {kBlock, -1}};
  BeginModel({"a", "b", "c"});
  for (const auto& c : cases) {
    SCOPED_TRACE(c.stored);
    std::string order;
    files_.before_removal = [&](const std::string& path) {
      const auto name = std::filesystem::path(path).parent_path().filename();
      if (path.ends_with(".sol")) order += name.string() + " ";
      return true;
    };
    EXPECT_TRUE(OfMaster().setPermissionState(c.state).commit());
    EXPECT_EQ(order, "sys #a #b #c ");
    EXPECT_EQ(OfMaster().getValue(), c.stored);
    for (const char* site : {"a", "b", "c"}) {
      EXPECT_EQ(Of(site).getValue(), c.stored);
      EXPECT_EQ(HasData(site), c.state != kBlock);
    }
  }
}

// A file may list it, and anybody can add it as a site.
TEST_F(StorageLimit, EndsWhenTheMasterDomainIsListedAsASite) {
  BeginModel({"a", "b"});
  const auto& master = SASM::SettingsManager::MasterDomain();
  EXPECT_TRUE(manager_->AddDomainWithDefaultSettings(master));
  EXPECT_TRUE(OfMaster().setPermissionState(kBlock).commit());
  EXPECT_FALSE(HasData("a") || HasData("b"));
  EXPECT_EQ(OfMaster().getValue(), -1);
}

TEST_F(StorageLimit, SaysWhenItGetsSmaller) {
  const struct {
    double stored;
    int position;  // -999 for none
    State state;
    bool less_than_before;
    bool less_than_used;
  } cases[] = {
      {100, -999, kNone, false, false}, {100, 1, kNone, true, false},
      {100, 2, kNone, false, false},    {100, -999, kAsk, true, true},
      {100, -999, kBlock, true, true},  {100, -999, kAllow, false, false},
      {101, -999, kAllow, true, false}, {-2, -999, kNone, false, true},
      {-2, 4, kBlock, true, true},      {0, 1, kBlock, false, true},
      {-1, -999, kNone, false, true},   {-1, -1, kNone, true, true},
  };
  BeginModel({"a"});
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    StorageSetting setting = Of("a");
    setting.setValue(c.stored);
    setting.setSliderSetting(c.position).setPermissionState(c.state);
    EXPECT_EQ(setting.isSettingLessThanOldValue(), c.less_than_before);
    EXPECT_EQ(setting.isLessThanSpaceUsed(), c.less_than_used);
  }
}

TEST_F(StorageLimit, FormatsTheSpaceUsed) {
  constexpr double kGB = 1 << 30;
  const struct {
    double bytes;
    int size;
    const char* text;
  } cases[] = {{0, 80, "none"},
               {1023, 80, "1023 bytes"},
               {1024, 80, "1 kB"},
               {1535, 80, "1 kB"},
               {1536, 80, "2 kB"},
               {1048575, 80, "1024 kB"},
               {1048576, 80, "1.00 MB"},
               {kGB - 1, 80, "1024.00 MB"},
               {5 * kGB, 80, "5.00 GB"},
               {18446744073709551616.0, 80, "17179869184.00 GB"},
               {1e300, 80, nullptr},
               {std::nan(""), 80, nullptr},
               {0, 3, "no"},
               {5 * kGB, 5, "5.00"},
               {0, 1, ""},
               {0, -1, "untouched"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.bytes);
    char buffer[80] = "untouched";
    StorageSetting::FormatSpace(c.bytes, buffer, c.size);
    EXPECT_TRUE(!c.text || std::string(buffer) == c.text) << buffer;
  }
}

}  // namespace
