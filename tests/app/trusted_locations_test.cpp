#include <gmock/gmock.h>

#include "app/widget_helpers.h"
#include "store/setting_keys.h"
#include "tests/app/panel_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

class TrustedLocationsTest : public PanelTest {
 protected:
  void Open(const Names& locations) {
    home_.AddLocations(locations);
    Start("advanced");
    Click("compat_settings_button");
  }

  Names Shown() { return Column("trusted_locations", 0); }
  std::string StoredLocations() {
    return home_.Stored(PanelHome::kMaster, SASM::kTrustedPaths);
  }

  void Add(const char* button, const std::string& path) {
    AnswerFileChooser(path, [&] { Click(button); });
  }

  void Edit(const char* row, const char* text) {
    g_signal_emit_by_name(
        get_object(panel_->builder, "trusted_location", GTK_TYPE_CELL_RENDERER),
        "edited", row, text);
  }

  void Remove(std::initializer_list<int> rows) {
    Select("trusted_locations_treeview", rows);
    Click("remove_trusted_location_button");
    EXPECT_FALSE(IsSensitive("remove_trusted_location_button"));
  }

  void SortDescending() {
    for (int i : {0, 1}) {
      (void)i;
      gtk_tree_view_column_clicked(
          get_column(panel_->builder, "trusted_location_column"));
    }
  }
};

TEST_F(TrustedLocationsTest, AddsWhatIsChosenAsOftenAsItIs) {
  home_.Write("media/film.flv", "");
  const std::string folder = home_ / "media";
  const std::string file = home_ / "media/film.flv";
  Open({});
  Add("add_trusted_location_button", folder);
  Add("add_trusted_file_button", file);
  Add("add_trusted_location_button", "");
  Add("add_trusted_location_button", folder);
  EXPECT_THAT(Shown(), ElementsAre(folder, file, folder));
  EXPECT_EQ(StoredLocations(), "[" + folder + " " + file + " " + folder + "]");
}

TEST_F(TrustedLocationsTest, EditsInPlace) {
  Open({"/a", "/b", "/c"});
  Edit("1", "/no/such <place>");
  EXPECT_THAT(Shown(), ElementsAre("/a", "/no/such <place>", "/c"));
  EXPECT_EQ(StoredLocations(), "[/a /no/such <place> /c]");
  Edit("1", "");
  Edit("3", "/beyond");
  Edit("99999999999999999999999", "/overflow");
  EXPECT_EQ(StoredLocations(), "[/a /no/such <place> /c]");
}

TEST_F(TrustedLocationsTest, RemovesSelectedRows) {
  Open({"/0", "/1", "/2", "/3", "/4"});
  EXPECT_FALSE(IsSensitive("remove_trusted_location_button"));
  Remove({1, 3});
  EXPECT_THAT(Shown(), ElementsAre("/0", "/2", "/4"));
  EXPECT_EQ(StoredLocations(), "[/0 /2 /4]");
  Remove({0, 1, 2});
  EXPECT_THAT(Shown(), IsEmpty());
  EXPECT_EQ(StoredLocations(), "[]");
}

// The rows then stand in another order than the stored list.
TEST_F(TrustedLocationsTest, ChangesTheRowThatIsMeantInASortedList) {
  Open({"/b", "/d", "/a", "/b", "/c"});
  SortDescending();
  ASSERT_THAT(Shown(), ElementsAre("/d", "/c", "/b", "/b", "/a"));
  Edit("1", "/e");
  EXPECT_EQ(StoredLocations(), "[/b /d /a /b /e]");
  ASSERT_THAT(Shown(), ElementsAre("/e", "/d", "/b", "/b", "/a"));
  Remove({0, 2, 3});
  EXPECT_EQ(StoredLocations(), "[/d /a]");
  Remove({1});
  EXPECT_EQ(StoredLocations(), "[/d]");
}

// Bytes that are no text are shown replaced; an edit that leaves the row as
// it is shown must not write the replacement.
TEST_F(TrustedLocationsTest, KeepsBytesThatAreNoText) {
  Open({"/caf\xe9", "/b"});
  Edit("0", "/caf\xef\xbf\xbd");
  EXPECT_EQ(StoredLocations(), "[/caf\xe9 /b]");
  Remove({0});
  EXPECT_EQ(StoredLocations(), "[/b]");
}

// Another type under the key is no list: nothing to show, nothing to change.
TEST_F(TrustedLocationsTest, LeavesAloneWhatIsNoList) {
  Open({"/a"});
  panel_->trusted_paths->setDoubleValue(7);
  Click("compat_settings_button");
  EXPECT_THAT(Shown(), IsEmpty());
  home_.Write("media/film.flv", "");
  Add("add_trusted_file_button", home_ / "media/film.flv");
  Edit("0", "/b");
  EXPECT_EQ(StoredLocations(), "7");
}
