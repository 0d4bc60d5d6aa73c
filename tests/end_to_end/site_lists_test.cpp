#include "tests/end_to_end/end_to_end_test.h"

namespace {

enum Choice { kBlock, kAsk, kAllow };

// Their texts in a row, and the keys that choose them.
constexpr const char* kShown[] = {"Block", "Ask me", "Allow"};
const std::string kKeys[] = {"Home", "Home Down", "End"};

enum List { kStorage, kCamera, kPeers };

struct ListCase {
  const char* page;
  const char* title;
  const char* title_of_adding;
  const char* permission_column;
  Choice preset;  // in the dialog that adds a site
} constexpr kLists[] = {
    {"storage", "Local Storage Settings by Site",
     "Add Local Storage Setting by Site", "Storage Access", kAllow},
    {"privacy", "Camera and Microphone Settings by Site",
     "Add Camera and Microphone Setting by Site", "Camera and Mic Access",
     kAsk},
    {"playback", "Peer-assisted Networking Settings by Site",
     "Add Peer-assisted Networking Setting by Site", "Network Access", kAllow},
};

}  // namespace

class SiteListTest : public EndToEndTest {
 protected:
  using Names = PanelHome::Names;

  void Open(int list, const Names& sites) {
    list_ = kLists[list];
    home_.AddSites(sites);
    Start(std::string("-p ") + list_.page);
    Click(std::string(list_.title) + "…");
    See(list_.title);
  }

  void Add(const std::string& site, const std::string& choice_keys = "") {
    Click("Add…");
    See(list_.title_of_adding);
    if (!choice_keys.empty()) Press("Tab " + choice_keys + " shift+Tab");
    Type(site);
    Press("Return");
    See(list_.title);
  }

  void ExpectState(const std::string& site, Choice choice) {
    if (list_.page == kLists[kStorage].page) {
      constexpr const char* kLimits[] = {"-1", "0", "100"};
      return ExpectStored(site, "klimit", kLimits[choice]);
    }
    const bool is_peers = list_.page == kLists[kPeers].page;
    ExpectStored(site, is_peers ? "p2palways" : "always",
                 choice == kAsk ? "false" : "true");
    ExpectStored(site, is_peers ? "p2pallow" : "allow",
                 choice == kAllow ? "true" : "false");
  }

  // From top to bottom.
  void ExpectSites(const Names& sites) {
    const auto is_site = [](const Accessible& node) {
      return node.Role() == "table cell" && node.Name().ends_with("example");
    };
    Names shown;
    EXPECT_TRUE(Eventually([&] {
      shown.clear();
      for (const auto& node : window_.FindAll(is_site)) {
        shown.push_back(node.Name());
      }
      return shown == sites;
    })) << testing::PrintToString(shown);
  }

  ListCase list_;
};

class EveryListTest : public SiteListTest,
                      public testing::WithParamInterface<int> {};

TEST_P(EveryListTest, AddsASiteOrChangesAKnownOne) {
  Open(GetParam(), {"b.example", "a.example"});
  // Added as typed: neither trimmed nor in lower case.
  Add(" New.Example");
  ExpectStored(kMaster, "domains", "[b.example a.example  New.Example]");
  ExpectState(" New.Example", list_.preset);
  Add("a.example", kKeys[kBlock]);
  ExpectState("a.example", kBlock);
  ExpectStored(kMaster, "domains", "[b.example a.example  New.Example]");
}

TEST_P(EveryListTest, AChoiceReachesEverySelectedSite) {
  Open(GetParam(), {"a.example", "b.example", "c.example"});
  const std::string before = home_.Read(PanelHome::SettingsFileOf("b.example"));
  for (const Choice choice : {kBlock, kAllow, kAsk}) {
    SCOPED_TRACE(kShown[choice]);
    Select({"c.example", "a.example"});
    Press("Right Right Return");
    (void)Get({"menu item"}, "Allow");
    Press(kKeys[choice] + " Return");
    ExpectState("a.example", choice);
    ExpectState("c.example", choice);
    // Waits for the refilled list, in which no row is selected.
    (void)Get({"table cell"}, kShown[choice]);
    Press("Down");
    ExpectSelected("b.example");
  }
  EXPECT_EQ(home_.Read(PanelHome::SettingsFileOf("b.example")), before);
}

// Sorted by reversed name or by permission; a refill keeps the order.
TEST_P(EveryListTest, RemovesSelectedSitesOfASortedList) {
  const std::string data = home_.AddData("example", 9);
  Open(GetParam(), {"shop.a.example", "z.b.example", "a.example"});
  Click("Website");
  ExpectSites({"a.example", "shop.a.example", "z.b.example"});
  Add("example", kKeys[kAsk]);
  ExpectSites({"example", "a.example", "shop.a.example", "z.b.example"});
  Add("z.b.example", kKeys[kBlock]);
  Click(list_.permission_column);
  ExpectSites({"z.b.example", "example", "a.example", "shop.a.example"});
  EXPECT_FALSE(Get({"push button"}, "Remove").Is(Accessible::kSensitive));
  Select({"example", "z.b.example"});
  Click("Remove");
  ExpectStored(kMaster, "domains", "[shop.a.example a.example]");
  EXPECT_FALSE(Get({"push button"}, "Remove").Is(Accessible::kSensitive));
  Press("Down");
  ExpectSelected("a.example");
  Close();
  EXPECT_FALSE(home_.Has(data));
  EXPECT_EQ(home_.Stored("z.b.example", "klimit"), "no settings");
  EXPECT_EQ(home_.Stored("a.example", "klimit"), "100");
}

INSTANTIATE_TEST_SUITE_P(, EveryListTest,
                         testing::Values(kStorage, kCamera, kPeers));

TEST_F(SiteListTest, StorageIsSortedByBytesAndDeletedByABlock) {
  // As texts, the last two sizes would be in the opposite order.
  const std::string data = home_.AddData("big.example", 2 << 20);
  home_.AddData("small.example", 900 << 10);
  Open(kStorage, {"big.example", "empty.example", "small.example"});
  Click("Storage Used");
  ExpectSites({"empty.example", "small.example", "big.example"});
  Add("big.example", kKeys[kBlock]);
  ExpectSites({"big.example", "empty.example", "small.example"});
  EXPECT_FALSE(home_.Has(data));
  ExpectState("big.example", kBlock);
}

TEST_F(SiteListTest, TypingFindsASiteAndDeleteRemovesIt) {
  Open(kCamera, {"a.example", "b.example", "sunny.example", "z.example"});
  EXPECT_TRUE(Get({"table"}, list_.title).Focus());
  Type("NNY");
  ExpectSelected("sunny.example");
  Press("Return Delete");
  ExpectStored(kMaster, "domains", "[a.example b.example z.example]");
  Select({"a.example", "z.example"});
  for (const char* answer : {"Escape", "Return", "Tab Return"}) {
    Press("Delete");
    See("Confirmation Needed");
    Press(answer);
    See(list_.title);
  }
  ExpectStored(kMaster, "domains", "[b.example]");
}

// A click on the permission of a selected row keeps the selection. A double
// click opens the menu and chooses nothing.
TEST_F(SiteListTest, ChangesSeveralPermissionsByMouse) {
  Open(kStorage, {"a.example", "b.example", "c.example"});
  Select({"a.example", "c.example"});
  ClickAt(Get({"table cell"}, "Allow"));
  ClickAt(Get({"menu item"}, "Block"));
  ExpectState("a.example", kBlock);
  ExpectState("c.example", kBlock);
  ExpectState("b.example", kAllow);
  // The state that one of them already has.
  Select({"a.example", "b.example"});
  ClickAt(Get({"table cell"}, "Allow"));
  (void)Get({"menu item"}, "Allow");
  Press(kKeys[kAllow] + " Return");
  ExpectState("a.example", kAllow);
  Add("b.example", kKeys[kAsk]);
  const auto before = home_.Disk();
  for (const int gap : {20, 200, 500}) {
    SCOPED_TRACE(gap);
    Select({"c.example", "b.example"});
    DoubleClickAt(Get({"table cell"}, kShown[kAsk]), gap);
    (void)Get({"menu item"}, "Block");
    EXPECT_EQ(home_.Disk(), before);
    Press("Escape");
  }
}

TEST_F(SiteListTest, ReadsTheSettingsAgain) {
  Open(kStorage, {"a.example"});
  home_.AddSites({"b.example", "a.example"});
  Press("F5");
  ExpectSites({"b.example", "a.example"});
}

TEST_F(SiteListTest, AMenuOpensWithWhatTheRowHasUnderThePointer) {
  Open(kCamera, {"a.example"});
  const std::string before = home_.Read(PanelHome::SettingsFileOf("a.example"));
  Select({"a.example"});
  const Accessible permission = Get({"table cell"}, "Ask me");
  ClickAt(permission);
  const Accessible choice = Get({"menu item"}, "Ask me for permission");
  ClickAt(permission);
  EXPECT_TRUE(Eventually([&] { return !choice.Is(Accessible::kShowing); }));
  Close();
  EXPECT_EQ(home_.Read(PanelHome::SettingsFileOf("a.example")), before);
}
