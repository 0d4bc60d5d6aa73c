#include <filesystem>

#include "tests/end_to_end/end_to_end_test.h"
#include "tests/support/settings_image.h"

class TrustedLocationsTest : public EndToEndTest {
 protected:
  static constexpr char kLocations[] = "Trusted Location Settings";

  TrustedLocationsTest() { std::filesystem::create_directory(folder_); }

  void Open() {
    Start("-p advanced");
    Click("Trusted Location Settings…");
    See(kLocations);
  }

  void ExpectLocations(const std::string& locations) {
    ExpectStored(kMaster, "trustedPaths", locations);
  }

  void AddFolder() {
    Click("Add Folder…");
    See("Choose the trusted directory");
    (void)Get({"toggle button"}, home_.Path().filename());
    Press("alt+o");  // nothing chosen yet
    Type(folder_);
    Press("Return");
    See(kLocations);
  }

  void Edit(const std::string& row, const std::string& text) {
    Select({row});
    Press("Return");
    Type(text);
    Press("Return");
  }

  const std::string folder_ = home_ / "media";
};

TEST_F(TrustedLocationsTest, AreAddedEditedAndRemoved) {
  home_.AddLocations({"/a", "/c", "/d"});
  Open();
  AddFolder();
  AddFolder();
  ExpectLocations("[/a /c /d " + folder_ + " " + folder_ + "]");
  Edit("/a", "/b");
  ExpectLocations("[/b /c /d " + folder_ + " " + folder_ + "]");
  Select({"/b", "/d"});
  Press("Delete");
  ExpectLocations("[/c " + folder_ + " " + folder_ + "]");
  Select({"/c"});
  Press("Return");
  Type("/e");
  ClickAt(Get({"push button"}, "Close"));
  ExpectLocations("[/e " + folder_ + " " + folder_ + "]");
}

// The rows are then in another order than the stored list.
TEST_F(TrustedLocationsTest, TheRowIsMeantInASortedList) {
  home_.AddLocations({"/b", "/d", "/a", "/b", "/c"});
  Open();
  // Descending.
  for (int i = 0; i < 2; ++i) Click("Trusted File or Folder Location");
  Edit("/c", "/e");
  ExpectLocations("[/b /d /a /b /e]");
  Select({"/e", "/d", "/b"});
  Click("Remove");
  ExpectLocations("[/a /b]");
}

// Bytes that are not text are shown escaped, and replaced in the entry. An edit
// without a change must not store the replacement.
TEST_F(TrustedLocationsTest, KeepsBytesThatAreNoText) {
  const std::string deep = "/" + std::string(400, 'd');
  home_.AddLocations({"/caf\xe9", "/b", deep + "/\u202E"});
  Open();
  Select({deep.substr(0, 128) + "…" + std::string(115, 'd') +
          "/"
          R"(\xE2\x80\xAE)"});
  Press("Return End BackSpace Return");
  ExpectLocations("[/caf\xe9 /b " + deep + "/]");
  Select({R"(/caf\xE9)"});
  Press("Return Return");
  Select({"/b"});
  Press("Delete");
  ExpectLocations("[/caf\xe9 " + deep + "/]");
}

// A value of another type is no list: it is neither shown nor changed.
TEST_F(TrustedLocationsTest, LeavesAloneWhatIsNoList) {
  home_.Write(
      PanelHome::MasterFile(),
      image::File("settings", image::Entry("trustedPaths", image::Number(7))));
  Open();
  AddFolder();
  Close();
  EXPECT_EQ(home_.Stored(kMaster, "trustedPaths"), "7");
}
