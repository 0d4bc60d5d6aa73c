// What is seen only inside of the process, or late.
#include "app/dialogs.h"
#include "app/list_sorting.h"
#include "app/lists.h"
#include "app/notebook_pages.h"
#include "tests/app/panel_test.h"
#include "tests/support/settings_image.h"

using testing::ElementsAre;
using testing::IsEmpty;
using Names = TemporaryHome::Names;

class WindowTest : public PanelTest {
 protected:
  WindowTest() { home_.AddSites({"a.example", "b.example"}); }

  // Emits the signal of the combo box in the list of local storage.
  void ChooseForSelected(PermissionState state) {
    GtkTreeIter choice;
    ASSERT_TRUE(gtk_tree_model_iter_nth_child(
        GTK_TREE_MODEL(get_list_store(panel_->builder, "permission_settings")),
        &choice, nullptr, state - 1));
    g_signal_emit_by_name(
        get_renderer(
            get_column(panel_->builder, "site_storage_permission_column")),
        "changed", "0", &choice);
    Settle();
  }

  // The texts of a column of that list, from top to bottom.
  Names Texts(int column) {
    Names texts;
    GtkTreeModel* model =
        GTK_TREE_MODEL(get_list_store(panel_->builder, "site_storage_list"));
    GtkTreeIter row;
    for (gboolean more = gtk_tree_model_get_iter_first(model, &row); more;
         more = gtk_tree_model_iter_next(model, &row)) {
      texts.emplace_back(get_text_field(model, &row, column).c_str());
    }
    return texts;
  }

  // In the site's file.
  void ExpectLimit(const std::string& site, double limit_kb) const {
    EXPECT_THAT(
        home_.Read(TemporaryHome::SettingsFileOf(site)),
        testing::HasSubstr(image::Entry("klimit", image::Number(limit_kb))));
  }

  // Whether the pointer is a hand over the first row of a column.
  bool IsHandOver(const char* column) {
    GtkTreeView* view = get_tree_view(panel_->builder, "site_storage_treeview");
    GdkRectangle cell;
    gtk_tree_view_get_cell_area(view, nullptr,
                                get_column(panel_->builder, column), &cell);
    GdkEvent motion = {.type = GDK_MOTION_NOTIFY};
    motion.motion.window = gtk_tree_view_get_bin_window(view);
    motion.motion.x = cell.x + 1;
    gtk_widget_event(GTK_WIDGET(view), &motion);
    return gdk_window_get_cursor(motion.motion.window);
  }

  std::string LabelAfter(const char* text, const char* tag) {
    constexpr int kNoSuchText = 1;
    set_label_text(panel_, "label12", kNoSuchText, text, tag);
    return gtk_label_get_label(GTK_LABEL(Widget("label12")));
  }

  static std::string TextOf(GtkWidget* message_dialog) {
    char* message = nullptr;
    g_object_get(message_dialog, "text", &message, nullptr);
    std::string text = message;
    g_free(message);
    return text;
  }

  int WidthWhenGiven(int room, const char* label) {
    GtkAllocation allocation = {0, 0, room, 100};
    gtk_widget_size_allocate(Widget(label), &allocation);
    int width = 0;
    gtk_widget_get_size_request(Widget(label), &width, nullptr);
    return width;
  }
};

// A change on another page is stored at once, but shown when the page is.
TEST_F(WindowTest, APageIsFilledOnlyWhenItIsCurrent) {
  Start("privacy");
  EXPECT_THAT(Texts(0), IsEmpty());
  GoToPage(kStoragePage);
  EXPECT_THAT(Texts(3), ElementsAre("Allow", "Allow"));
  GoToPage(kAdvancedPage);
  Select("site_storage_treeview", {1});
  ChooseForSelected(kPermissionStateAlwaysDeny);
  ExpectLimit("b.example", -1);
  EXPECT_THAT(Texts(3), ElementsAre("Allow", "Allow"));
  EXPECT_TRUE(
      gtk_widget_get_sensitive(Widget("remove_site_storage_setting_button")));
  GoToPage(kStoragePage);
  EXPECT_THAT(Texts(3), ElementsAre("Allow", "Block"));
  // A row of a site that was removed from another list changes nothing.
  GoToPage(kPrivacyPage);
  Select("site_privacy_treeview", {1});
  Click("remove_site_privacy_setting_button");
  const auto before = home_.Take();
  Select("site_storage_treeview", {1});
  ChooseForSelected(kPermissionStateAlwaysAllow);
  EXPECT_EQ(home_.Take(), before);
}

TEST_F(WindowTest, AHandPointsAtWhatAClickOpens) {
  Start();
  Click("site_storage_button");
  EXPECT_TRUE(IsHandOver("site_storage_permission_column"));
  EXPECT_FALSE(IsHandOver("site_storage_site_column"));
}

TEST_F(WindowTest, ShowAndChangeTenThousandSites) {
  Names sites;
  for (int i = 0; i < 10000; ++i) {
    sites.push_back("s" + std::to_string(i) + ".example");
  }
  home_.AddSites(sites);
  Start();
  const List& list = kLists[kStorageList];
  gtk_widget_show(Widget(list.dialog));
  Settle();
  EXPECT_EQ(Texts(0), sites);
  gtk_tree_view_column_clicked(
      get_column(panel_->builder, "site_storage_site_column"));
  ASSERT_EQ(Texts(0)[2], "s10.example");
  Select(list.tree_view, {0, 2, 9999});
  GtkAdjustment* scrolling = gtk_tree_view_get_vadjustment(
      get_tree_view(panel_->builder, list.tree_view));
  constexpr double kPlace = 200000;
  Settle();
  gtk_adjustment_set_value(scrolling, kPlace);
  Settle();
  // Busy while the list is filled, and no longer.
  GdkWindow* window = gtk_widget_get_window(panel_->window);
  const auto expect_watch =
      +[](GdkWindow* over) { EXPECT_TRUE(gdk_window_get_cursor(over)); };
  g_signal_connect_swapped(get_list_store(panel_->builder, list.store),
                           "row-inserted", G_CALLBACK(expect_watch), window);
  ChooseForSelected(kPermissionStateAlwaysAsk);
  EXPECT_FALSE(gdk_window_get_cursor(window));
  EXPECT_EQ(gtk_adjustment_get_value(scrolling), kPlace);
  ExpectLimit("s10.example", 0);
  Select(list.tree_view, {2});
  Click(list.remove_button);
  sites.erase(sites.begin() + 10);
  EXPECT_EQ(image::NamesOf(*panel_->settings->GetDomains()), sites);
}

TEST_F(WindowTest, HeadingsEndInNoColon) {
  Start();
  EXPECT_EQ(LabelAfter("Updates:", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates:", "i"), "<i>Updates:</i>");
  EXPECT_EQ(LabelAfter("Updates:", nullptr), "Updates:");
  EXPECT_EQ(LabelAfter(nullptr, "b"), "Updates:");
}

TEST_F(WindowTest, ErrorDialogsShowWhatTheyAreGiven) {
  Start();
  EXPECT_EQ(TextOf(show_error_dialog(nullptr, nullptr, nullptr, nullptr)),
            "Error");
  GtkWidget* dialog =
      show_error_dialog(GTK_WINDOW(panel_->window), "Title", "Lost: %s.",
                        g_error_new(G_FILE_ERROR, 0, "%%s <b>"));
  EXPECT_EQ(TextOf(dialog), "Lost: %s <b>.");
  EXPECT_STREQ(gtk_window_get_title(GTK_WINDOW(dialog)), "Title");
  EXPECT_EQ(TextOf(show_error_dialog(nullptr, "", "Lost: %s.", nullptr)),
            "Lost: .");
}

// That of the question goes on with its window.
TEST_F(WindowTest, LabelsWrapAtTheWidthOfTheirFirstAllocation) {
  Start();
  for (const auto& [room, widest] :
       {std::pair(700, 700), {900, 900}, {500, 900}}) {
    EXPECT_EQ(WidthWhenGiven(room, "clear_site_data_label5"), 700 - 10);
    EXPECT_EQ(WidthWhenGiven(room, "deny_all_storage_label"), widest);
  }
}

TEST(DomainOrder, ReadsComponentsFromTheLast) {
  for (const auto& [domain, reversed] :
       {std::pair("shop.example.com", "com.example.shop"),
        {"localhost", "localhost"},
        {".a..b.", "b.a"},
        {"...", ""},
        {"", ""}}) {
    EXPECT_EQ(reverse_domain_components(domain), reversed) << domain;
  }
}
