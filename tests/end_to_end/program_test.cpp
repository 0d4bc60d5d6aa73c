#include <gmock/gmock.h>

#include <set>

#include "tests/end_to_end/end_to_end_test.h"

using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

namespace {

// A dialog, and what opens it.
struct DialogCase {
  const char* page;
  const char* role;
  const char* opener;
  const char* title;
  bool destroys;
};

constexpr DialogCase kDialogs[] = {
    {"storage", "radio button",
     "Block all sites from storing information on this computer",
     "Disable Local Storage", true},
    {"storage", "push button", "Delete All…",
     "Delete All Site Data in Corvane Player", true},
    {"storage", "push button", "Local Storage Settings by Site…",
     "Local Storage Settings by Site", false},
    {"privacy", "push button", "Camera and Microphone Settings by Site…",
     "Camera and Microphone Settings by Site", false},
    {"playback", "push button", "Peer-assisted Networking Settings by Site…",
     "Peer-assisted Networking Settings by Site", false},
    {"advanced", "push button", "Delete All…",
     "Delete All Site Data in Corvane Player", true},
    {"advanced", "push button", "Deauthorize This Computer…",
     "Deauthorize This Computer", true},
    {"advanced", "push button", "Trusted Location Settings…",
     "Trusted Location Settings", false},
};

// The dialogs that a site dialog opens in turn, and what they ask.
constexpr const char* kNewSiteTitles[][2] = {
    {"Local Storage Settings by Site", "Add Local Storage Setting by Site"},
    {"Camera and Microphone Settings by Site",
     "Add Camera and Microphone Setting by Site"},
    {"Peer-assisted Networking Settings by Site",
     "Add Peer-assisted Networking Setting by Site"},
};

// What only holds other things, or is part of a control that has a name.
const std::set<std::string> kNeedNoName = {
    "filler",   "icon",       "image",     "menu",        "page tab list",
    "panel",    "scroll bar", "separator", "scroll pane", "table cell",
    "viewport", "menu item",  "unknown"};

}  // namespace

class PageTest : public EndToEndTest,
                 public testing::WithParamInterface<const char*> {
 protected:
  PageTest() {
    home_.AddSites({"a.example"});
    home_.AddLocations({"/srv/media"});
    data_ = home_.AddData("a.example", 10);
    home_.Write(std::string(PanelHome::kLicences) + "/licence", "licence");
    Start({"--show-page", GetParam()});
  }

  void ForEachDialog(const std::function<void(const DialogCase&)>& visit) {
    for (const DialogCase& dialog : kDialogs) {
      if (std::string(dialog.page) != GetParam()) continue;
      SCOPED_TRACE(dialog.title);
      See(kMainWindow);
      Click(dialog.opener, dialog.role);
      See(dialog.title);
      if (HasFatalFailure()) return;
      visit(dialog);
    }
  }

  void LeaveWith(const char* key, const char* title) {
    Press(key);
    SeeNoMore(title);
  }

  void ExpectNames() {
    const auto nameless = Window().FindAll([](const Accessible& node) {
      return node.Is(Accessible::kShowing) && node.Name().empty() &&
             !kNeedNoName.contains(node.Role());
    });
    for (const Accessible& node : nameless) ADD_FAILURE() << node.Role();
    EXPECT_FALSE(Window().Name().empty());
  }

  std::string data_;
};

TEST_P(PageTest, EverythingHasANameAndEscapeLeavesEveryDialog) {
  ExpectNames();
  const auto before = home_.Disk();
  ForEachDialog([&](const DialogCase& dialog) {
    ExpectNames();
    for (const auto& [list, new_site] : kNewSiteTitles) {
      if (std::string(list) != dialog.title) continue;
      Click("Add…");
      See(new_site);
      ExpectNames();
      LeaveWith("Escape", new_site);
      See(dialog.title);
    }
    LeaveWith("Escape", dialog.title);
  });
  EXPECT_EQ(home_.Disk(), before);
}

TEST_P(PageTest, EnterDestroysNothingByAccident) {
  const auto before = home_.Disk();
  ForEachDialog([&](const DialogCase& dialog) {
    LeaveWith(dialog.destroys ? "Return" : "Escape", dialog.title);
  });
  EXPECT_EQ(home_.Disk(), before);
}

INSTANTIATE_TEST_SUITE_P(
    , PageTest, testing::Values("storage", "privacy", "playback", "advanced"),
    [](const auto& page) { return std::string(page.param); });

TEST_F(EndToEndTest, EveryWayOfClosingEndsWell) {
  for (const char* key : {"Escape", "alt+F4", "Return"}) {
    SCOPED_TRACE(key);
    Start();
    if (std::string(key) == "Return") Focus("push button", "Close");
    Press(key);
    ExpectQuietEnd();
  }
}

TEST_F(EndToEndTest, AnswersOnTheCommandLine) {
  const struct {
    std::vector<std::string> options;
    int status;
    const char* output;
    const char* errors;
  } cases[] = {
      {{"--no-such-option"}, 1, "", "Unknown option --no-such-option\n"},
      {{"--show-page"}, 1, "", "Missing argument for --show-page\n"},
      {{"--help"}, 0, "Usage:\n", ""},
      {{}, 1, "", "Cannot open display: \n"},
  };
  for (const auto& c : cases) {
    std::vector<std::string> command = {Program()};
    command.insert(command.end(), c.options.begin(), c.options.end());
    Process program(command, {"DISPLAY"});
    EXPECT_EQ(program.ExitStatus(), c.status);
    EXPECT_THAT(program.Output(), StartsWith(c.output));
    EXPECT_EQ(program.Errors(), c.errors);
  }
  EXPECT_THAT(home_.List(), IsEmpty());
}

// Whatever the files hold: a usable window, and the reader's own messages.
TEST_F(EndToEndTest, StartsOnDamagedFiles) {
  home_.AddSites({"a.example", "b.example"});
  const std::string master = home_.Read(PanelHome::MasterFile());
  const std::string site = home_.Read(PanelHome::SettingsFileOf("a.example"));
  expected_errors_ = "SMSettingsReader: ";
  const std::string damaged[] = {"", "\xff", master.substr(0, 40),
                                 std::string(100000, '\x03'),
                                 master + std::string(1, '\0')};
  for (const std::string& bytes : damaged) {
    home_.Write(PanelHome::MasterFile(), bytes);
    home_.Write(PanelHome::SettingsFileOf("a.example"), site.substr(0, 30));
    Start();
    Click(
        "Ask me before allowing new sites to save information on this "
        "computer",
        "radio button");
    ExpectStored(PanelHome::kMaster, "defaultklimit", "0");
    Close();
    ExpectQuietEnd();
  }
}
