#include "tests/support/store_test.h"

namespace {

using namespace image;
using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SimpleString;

class SettingsWriter : public StoreTest {
 protected:
  SettingsWriter() { Start(); }
  void Set(SettingDataItem item) {
    EXPECT_TRUE(manager_->SetSetting(&item, item.name, "site"));
  }
  // The image of a site without settings, under that name and "/settings".
  Bytes Empty(const std::string& name) {
    EXPECT_FALSE(manager_->HasSetting("k", name.c_str()));
    return SiteFile(name);
  }
};

TEST_F(SettingsWriter, ChoosesTheHeaderByTheLengthOfTheBody) {
  EXPECT_EQ(Empty("n"),
            Hex("00 9A 54 43 53 4F 00 04 00 00 00 00 00 0A 6E 2F 73 65 74 74 "
                "69 6E 67 73 00 00 00 00"));
  EXPECT_EQ(Empty(std::string(37, 'n')).substr(0, 6), Hex("00 BE") + "TCSO");
  EXPECT_EQ(Empty(std::string(38, 'n')).substr(0, 10),
            Hex("00 BF 00 00 00 3F") + "TCSO");
}

TEST_F(SettingsWriter, LeavesNothingOutThatCanBeReadBack) {
  auto* list = new SDIVector;
  for (const SettingDataItem& element :
       {SettingDataItem("a", new SimpleString("x")),
        SettingDataItem("", true),  // would end the array
        SettingDataItem("b", true), SettingDataItem("c", 0.5)}) {
    list->addElement(&element);
  }
  Set({"list", list});
  Set({"ba", new SimpleString(std::string(70000, 't').c_str())});
  Set({"later", static_cast<SASM::_SettingsDataType>(7), nullptr});
  EXPECT_EQ(SiteFile("site"),
            File("site/settings",
                 Entry("ba", String(std::string(65535, 't'))) +
                     Entry("later", Hex("07")) +
                     Entry("list", Array(Hex("00 01 61 02 00 01 78") +
                                         Element("b", Bool(1)) +
                                         Element("c", Number(0.5))))));
}

}  // namespace
