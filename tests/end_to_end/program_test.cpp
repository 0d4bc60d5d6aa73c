#include <set>

#include "tests/end_to_end/end_to_end_test.h"

using testing::IsEmpty;
using testing::StartsWith;

namespace {

// A dialog, the button that opens it, and the dialog that its "Add…" opens.
struct DialogCase {
  const char* page;
  const char* opener;
  const char* title;
  bool destroys;
  const char* title_of_adding = nullptr;
};

constexpr DialogCase kDialogs[] = {
    {"storage", "Block all sites from storing information on this computer",
     "Disable Local Storage", true},
    {"storage", "Delete All…", "Delete All Site Data in Corvane Player", true},
    {"storage", "Local Storage Settings by Site…",
     "Local Storage Settings by Site", false,
     "Add Local Storage Setting by Site"},
    {"privacy", "Camera and Microphone Settings by Site…",
     "Camera and Microphone Settings by Site", false,
     "Add Camera and Microphone Setting by Site"},
    {"playback", "Peer-assisted Networking Settings by Site…",
     "Peer-assisted Networking Settings by Site", false,
     "Add Peer-assisted Networking Setting by Site"},
    {"advanced", "Delete All…", "Delete All Site Data in Corvane Player", true},
    {"advanced", "Deauthorize This Computer…", "Deauthorize This Computer",
     true},
    {"advanced", "Trusted Location Settings…", "Trusted Location Settings",
     false},
};

// Roles of containers, and of parts of a control that has a name.
const std::set<std::string> kNeedNoName = {
    "filler",   "icon",       "image",     "menu",        "page tab list",
    "panel",    "scroll bar", "separator", "scroll pane", "table cell",
    "viewport", "menu item",  "unknown"};

}  // namespace

class ProgramTest : public EndToEndTest {
 protected:
  // That every control has a name and sounds like no other.
  void ExpectNames() {
    const auto nameless = window_.FindAll([](const Accessible& node) {
      return node.Is(Accessible::kShowing) && node.Name().empty() &&
             !kNeedNoName.contains(node.Role());
    });
    for (const Accessible& node : nameless) ADD_FAILURE() << node.Role();
    const auto controls = window_.FindAll([](const Accessible& node) {
      return node.Is(Accessible::kFocusable) &&
             !kNeedNoName.contains(node.Role());
    });
    std::set<std::pair<std::string, std::string>> heard;
    for (const Accessible& node : controls) {
      EXPECT_TRUE(heard.emplace(node.Name(), node.Description()).second)
          << "Another control sounds like " << node.Name();
    }
  }

  void Open(const char* button, const char* title) {
    Click(button);
    See(title);
    ExpectNames();
  }
};

TEST_F(ProgramTest, NothingHappensInADialogThatIsLeft) {
  home_.AddSites({"a.example"});
  home_.AddLocations({"/srv/media"});
  (void)home_.AddData("a.example", 10);
  home_.Write(std::string(PanelHome::kLicences) + "/licence", "licence");
  for (const DialogCase& dialog : kDialogs) {
    SCOPED_TRACE(dialog.title);
    Start(std::string("--show-page ") + dialog.page);
    ExpectNames();
    const auto before = home_.Disk();
    Open(dialog.opener, dialog.title);
    if (dialog.title_of_adding) {
      Open("Add…", dialog.title_of_adding);
      Press("Escape");
      See(dialog.title);
    }
    Press("Escape");
    See(kMainWindow);
    if (dialog.destroys) {
      Open(dialog.opener, dialog.title);
      Press("Return");
      See(kMainWindow);
    }
    Close();
    EXPECT_EQ(home_.Disk(), before);
  }
}

TEST_F(ProgramTest, EveryWayOfClosingEndsWell) {
  for (const char* key : {"Escape", "alt+F4", "Return", "ctrl+q"}) {
    SCOPED_TRACE(key);
    Start();
    if (std::string(key) == "Return") {
      EXPECT_TRUE(Get({"push button"}, "Close").Focus());
    }
    Press(key);
    ExpectEnd();
  }
}

TEST_F(ProgramTest, AnswersOnTheCommandLine) {
  const struct {
    const char* options;
    int status;
    const char* output;
    const char* errors;
    const char* environment = "-u DISPLAY";
  } cases[] = {
      {"--no-such-option", 1, "", "Unknown option --no-such-option\n"},
      {"--show-page", 1, "", "Missing argument for --show-page\n"},
      {"--help", 0, "Usage:\n", ""},
      {"", 1, "", "Cannot open display: \n"},
      {"--display=:77", 1, "", "Cannot open display: :77\n"},
      {"", 1, "", "Cannot open display: :78\n", "DISPLAY=:78"},
  };
  for (const auto& c : cases) {
    const ProgramRun run =
        RunCommand(std::string("env ") + c.environment + " " +
                   Quoted(PANEL_PROGRAM) + " " + c.options);
    EXPECT_EQ(run.status, c.status);
    EXPECT_THAT(run.output, StartsWith(c.output));
    EXPECT_EQ(run.errors, c.errors);
  }
  EXPECT_THAT(home_.List(), IsEmpty());
}

// An unknown name shows the first page; a box that is no page, the last.
TEST_F(ProgramTest, ShowsSomePageWhateverTheName) {
  Start("-p nonsense");
  (void)Get({"push button"}, "Local Storage Settings by Site…");
  Close();
  Start("-p storage_by_site");
  (void)Get({"push button"}, "Trusted Location Settings…");
}

// The window is usable whatever the files hold.
TEST_F(ProgramTest, StartsOnDamagedFiles) {
  home_.AddSites({"a.example", "b.example"});
  const std::string master = home_.Read(PanelHome::MasterFile());
  const std::string site = home_.Read(PanelHome::SettingsFileOf("a.example"));
  const std::string damaged[] = {"", "\xff", master.substr(0, 40),
                                 std::string(100000, '\x03'),
                                 master + std::string(1, '\0')};
  for (const std::string& bytes : damaged) {
    home_.Write(PanelHome::MasterFile(), bytes);
    home_.Write(PanelHome::SettingsFileOf("a.example"), site.substr(0, 30));
    Start();
    Click(
        "Ask me before allowing new sites to save information on this "
        "computer");
    ExpectStored(kMaster, "defaultklimit", "0");
    Close("(SMSettingsReader: [^\n]*\n)*");
  }
  home_.Write(PanelHome::MasterFile(), "\xff");
  Start("2>&-");  // messages must not go into the connection to the display
}
