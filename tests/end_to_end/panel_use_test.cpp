#include <gmock/gmock.h>

#include "tests/end_to_end/end_to_end_test.h"

namespace {

constexpr char kAsk[] =
    "Ask me before allowing new sites to save information on this computer";
constexpr char kBlock[] =
    "Block all sites from storing information on this computer";
constexpr char kStorageList[] = "Local Storage Settings by Site";
constexpr char kCameraList[] = "Camera and Microphone Settings by Site";
constexpr char kLocations[] = "Trusted Location Settings";
constexpr char kPeerList[] = "Peer-assisted Networking Settings by Site";

}  // namespace

class PanelUseTest : public EndToEndTest {
 protected:
  // The site dialog of the page, opened by its button.
  void OpenList(const char* page, const char* title) {
    Start({"-p", page});
    Click(std::string(title) + "…");
    See(title);
  }

  // One of the permissions that open below a row.
  Accessible GetChoice(const std::string& name) {
    Accessible choice;
    EXPECT_TRUE(Eventually([&] {
      const auto items = Accessible::OfProgram(program_->Id())
                             .FindAll([&](const Accessible& node) {
                               return node.Role() == "menu item" &&
                                      node.Name() == name &&
                                      node.Is(Accessible::kShowing);
                             });
      if (!items.empty()) choice = items.front();
      return choice.Exists();
    })) << name;
    return choice;
  }

  void ExpectLocations(const std::string& locations) {
    ExpectStored(PanelHome::kMaster, "trustedPaths", locations);
  }

  // The row gets the cursor, and with it the selection.
  void ExpectSelected(const std::string& row) {
    EXPECT_TRUE(Eventually([&] {
      return Get("table cell", row).Is(Accessible::kSelected);
    })) << row;
  }
};

TEST_F(PanelUseTest, ChoosesStorageForAllSites) {
  home_.AddSites({"a.example"});
  const std::string data = home_.AddData("a.example", 10);
  Start();
  Click(kAsk, "radio button");
  ExpectStored(PanelHome::kMaster, "defaultklimit", "0");
  Click(kBlock, "radio button");
  See("Disable Local Storage");
  Click("Cancel");
  See(kMainWindow);
  EXPECT_TRUE(Eventually(
      [&] { return Get("radio button", kAsk).Is(Accessible::kChecked); }));
  EXPECT_EQ(home_.Stored("a.example", "klimit"), "0");
  Click(kBlock, "radio button");
  See("Disable Local Storage");
  Click("Disable Local Storage");
  ExpectStored("a.example", "klimit", "-1");
  EXPECT_TRUE(Eventually([&] { return !home_.Has(data); }));
}

TEST_F(PanelUseTest, AddsASiteByKeyboard) {
  OpenList("storage", kStorageList);
  Click("Add…");
  See("Add Local Storage Setting by Site");
  Type("new-site.example");
  Press("Return");
  See(kStorageList);
  ExpectStored(PanelHome::kMaster, "domains", "[new-site.example]");
  ExpectStored("new-site.example", "klimit", "100");
}

TEST_F(PanelUseTest, TypingFindsASiteAndDeleteRemovesIt) {
  home_.AddSites({"a.example", "b.example", "sunny.example", "z.example"});
  OpenList("privacy", kCameraList);
  Focus("table", kCameraList);
  Type("sun");
  ExpectSelected("sunny.example");
  Press("Return");
  Press("Delete");
  ExpectStored(PanelHome::kMaster, "domains",
               "[a.example b.example z.example]");
}

TEST_F(PanelUseTest, ChangesAPermissionByKeyboard) {
  home_.AddSites({"a.example", "b.example"});
  OpenList("playback", kPeerList);
  Focus("table", kPeerList);
  for (const char* row : {"a.example", "b.example"}) {
    Press("Down");
    ExpectSelected(row);
  }
  for (const char* key : {"Right", "Return"}) Press(key);
  (void)GetChoice("Allow");
  for (const char* key : {"Down", "Down", "Return"}) Press(key);
  ExpectStored("b.example", "p2pallow", "true");
  EXPECT_EQ(home_.Stored("a.example", "p2pallow"), "false");
}

// A click on the permission of a selected row keeps the selection.
TEST_F(PanelUseTest, ChangesSeveralPermissionsByMouse) {
  home_.AddSites({"a.example", "b.example", "c.example"});
  OpenList("storage", kStorageList);
  ClickAt(Get("table cell", "a.example"));
  ExpectSelected("a.example");
  ClickAt(Get("table cell", "c.example"), "Control_L");
  ExpectSelected("c.example");
  ClickAt(Get("table cell", "Allow"));
  ClickAt(GetChoice("Block"));
  ExpectStored("c.example", "klimit", "-1");
  ExpectStored("a.example", "klimit", "-1");
  EXPECT_EQ(home_.Stored("b.example", "klimit"), "100");
}

TEST_F(PanelUseTest, DeletesAllSites) {
  home_.AddSites({"a.example", "b.example"});
  const std::string data = home_.AddData("a.example", 10);
  Start();
  Click("Delete All…");
  See("Delete All Site Data in Corvane Player");
  Click("Delete Data");
  ExpectStored(PanelHome::kMaster, "domains", "[]");
  EXPECT_TRUE(Eventually([&] { return !home_.Has(data); }));
}

TEST_F(PanelUseTest, KeepsTrustedLocations) {
  const std::string home = home_.Path();
  home_.AddLocations({"/a", "/c"});
  Start({"-p", "advanced"});
  Click("Trusted Location Settings…");
  See(kLocations);
  Click("Add Folder…");
  See("Choose the trusted directory");
  Press("alt+Home");
  (void)Get("toggle button", home_.Path().filename());
  Click("Open");
  See(kLocations);
  ExpectLocations("[/a /c " + home + "]");
  Focus("table", kLocations);
  Press("Down");
  ExpectSelected("/a");
  Press("Return");
  Type("/b");
  Press("Return");
  ExpectLocations("[/b /c " + home + "]");
  ClickAt(Get("table cell", "/c"));
  ExpectSelected("/c");
  Press("Delete");
  ExpectLocations("[/b " + home + "]");
}
