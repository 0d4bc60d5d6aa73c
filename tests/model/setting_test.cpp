#include "model/permission_setting.h"
#include "tests/model/model_test.h"

namespace {

using namespace image;
using Setting = ModelTest;

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
    home_.Write(TemporaryHome::SettingsFileOf("a"),
                File("n", c.value.empty() ? "" : Entry("k", c.value)));
    StartModel();
    SettingBase setting("k", "a");
    EXPECT_EQ(setting.getDoubleValue(), c.number);
    EXPECT_EQ(setting.getBoolValue("k"), c.boolean);
    EXPECT_EQ(setting.getVectorValue() != nullptr, c.is_list);
  }
}

TEST_F(Setting, StoresItsOwnListChangedInPlace) {
  StartModel();
  SettingBase setting("trustedPaths", SASM::SettingsManager::MasterDomain());
  for (const char* path : {"a", "b"}) {
    const SASM::SettingDataItem item(path, new SASM::SimpleString(path));
    setting.getVectorValue()->addElement(&item);
    setting.setVectorValue(setting.getVectorValue());
  }
  setting.setVectorValue(nullptr);
  EXPECT_THAT(Describe(Master()),
              testing::HasSubstr("trustedPaths=[a='a' b='b']"));
}

TEST_F(Setting, FirstOneMakesTheOneManager) {
  SettingBase::mSettingsManager = nullptr;
  const SettingBase first("k", "a");
  // Never freed.
  static SASM::SettingsManager* const manager = SettingBase::mSettingsManager;
  ASSERT_NE(manager, nullptr);
  const SettingBase second("k", "b");
  EXPECT_EQ(SettingBase::mSettingsManager, manager);
}

TEST_F(Setting, PermissionIsReadFromTwoBooleans) {
  const struct {
    Bytes always;
    Bytes allow;
    int state;
  } cases[] = {
      {"", "", 2},
      {"", Bool(1), 2},
      {Bool(0), Bool(1), 2},
      {Bool(1), "", 1},
      {Bool(1), Bool(0), 1},
      {Bool(1), Bool(1), 3},
      {Number(1), Bool(1), 2},
      {Bool(1), String("true"), 1},
  };
  const auto entry = [](const char* key, const Bytes& value) {
    return value.empty() ? "" : Entry(key, value);
  };
  for (const auto& c : cases) {
    home_.Write(
        TemporaryHome::SettingsFileOf("a"),
        File("n", entry("p2palways", c.always) + entry("p2pallow", c.allow)));
    StartModel();
    PermissionSetting setting(PermissionSetting::kPeerAssistedNetworking, "a");
    EXPECT_EQ(setting.getState(), c.state) << &c - cases;
  }
}

TEST_F(Setting, PermissionIsWrittenAlwaysFirst) {
  const struct {
    PermissionSetting::_SettingsPermissionState state;
    const char* after_one;
    const char* after_two;
  } cases[] = {
      {PermissionSetting::kPermissionStateAlwaysAllow, "always=true",
       "always=true allow=true"},
      {PermissionSetting::kPermissionStateAlwaysAsk, "always=false allow=true",
       "always=false allow=false"},
      {PermissionSetting::kPermissionStateAlwaysDeny, "always=true allow=false",
       "always=true allow=false"},
      {PermissionSetting::kPermissionStateNone, "always=true allow=false",
       "always=true allow=false"},
  };
  StartModel();
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

}  // namespace
