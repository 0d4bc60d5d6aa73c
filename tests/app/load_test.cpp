#include "app/notebook_pages.h"
#include "app/widget_helpers.h"
#include "store/setting_keys.h"
#include "tests/app/panel_test.h"

class LoadTest : public PanelTest {
 protected:
  void ShowList(const List& list) {
    gtk_widget_show(Widget(list.dialog));
    Settle();
  }

  // Shows or hides the tooltip of the row with the cursor.
  void ToggleTooltip(const char* tree_view) {
    gboolean is_toggled = FALSE;
    g_signal_emit_by_name(Widget(tree_view), "show-help",
                          GTK_WIDGET_HELP_TOOLTIP, &is_toggled);
    Settle();
  }

  // Null when there is none.
  static GtkWidget* ShownTooltip() {
    GtkWidget* tooltip = nullptr;
    GList* windows = gtk_window_list_toplevels();
    for (GList* node = windows; node; node = node->next) {
      auto* window = GTK_WINDOW(node->data);
      if (gtk_widget_get_visible(GTK_WIDGET(window)) &&
          gtk_window_get_type_hint(window) == GDK_WINDOW_TYPE_HINT_TOOLTIP) {
        tooltip = GTK_WIDGET(window);
      }
    }
    g_list_free(windows);
    return tooltip;
  }
};

TEST_F(LoadTest, TenThousandSites) {
  Names sites;
  for (int i = 0; i < 10000; ++i) {
    sites.push_back("s" + std::to_string(i) + ".example");
  }
  home_.AddSites(sites);
  Start();
  const List& list = kLists[kStorageList];
  ShowList(list);
  EXPECT_EQ(Column(list.store, 0), sites);
  gtk_tree_view_column_clicked(
      get_column(panel_->builder, "site_storage_site_column"));
  ASSERT_EQ(Column(list.store, 0)[2], "s10.example");
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
  ChooseInList(kStorageList, kPermissionStateAlwaysAsk);
  EXPECT_FALSE(gdk_window_get_cursor(window));
  EXPECT_EQ(gtk_adjustment_get_value(scrolling), kPlace);
  EXPECT_EQ(home_.Stored("s10.example", "klimit"), "0");
  Select(list.tree_view, {2});
  Click(list.remove_button);
  sites.erase(sites.begin() + 10);
  Names stored;
  const SASM::SDIVector* domains = panel_->settings->GetDomains();
  for (unsigned int i = 0; i < domains->count; ++i) {
    stored.emplace_back(domains->At(i)->name.c_str());
  }
  EXPECT_EQ(stored, sites);
}

// Names that are not text, look like markup, read from right to left or fill
// a line can be shown, changed and removed, and keep their bytes.
TEST_F(LoadTest, NamesThatAreHardToShow) {
  const Names sites = {"caf\xe9.example",
                       "<b>&amp;</i>",
                       "a\nb\tc",
                       "\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d",
                       "%s%n",
                       std::string(254, 'w')};
  home_.AddSites(sites);
  Start();
  for (const int page : {kPlaybackPage, kPrivacyPage, kStoragePage}) {
    GoToPage(page);
    for (const List& list : kSiteLists) ShowList(list);
  }
  Select("site_storage_treeview", {0, 1, 2, 3, 4, 5});
  ChooseInList(kStorageList, kPermissionStateAlwaysDeny);
  for (const std::string& site : sites) {
    EXPECT_EQ(home_.Stored(site, "klimit"), "-1");
  }
  Select("site_storage_treeview", {0, 1, 3});
  Click("remove_site_storage_setting_button");
  EXPECT_EQ(
      home_.Stored(PanelHome::kMaster, SASM::kDomains),
      "[" + sites[2] + "=true " + sites[4] + "=true " + sites[5] + "=true]");
}

TEST_F(LoadTest, HugeNamesFitTheScreen) {
  setenv("GTK2_RC_FILES", "/dev/null", 1);
  Names locations(1, std::string(65535, '\t'));  // the longest
  for (const char* text :
       {"W", "wide enough\n", "\U0001F468\u200D", "e\u0301"}) {
    std::string name;
    for (int i = 0; i < 2800; ++i) name += text;
    locations.push_back(name);
  }
  home_.AddSites({}, locations);
  Start();
  g_object_set(gtk_settings_get_default(), "gtk-font-name", "Sans 40", nullptr);
  Click("compat_settings_button");
  // Without a window manager the window under the pointer gets the focus. A
  // tooltip must not get it.
  gdk_display_warp_pointer(gdk_display_get_default(), gdk_screen_get_default(),
                           gdk_screen_width() - 1, gdk_screen_height() - 1);
  Settle();
  for (int row = 0; row < static_cast<int>(locations.size()); ++row) {
    SCOPED_TRACE(row);
    Select("trusted_locations_treeview", {row});
    ToggleTooltip("trusted_locations_treeview");
    GtkWidget* tooltip = ShownTooltip();
    ASSERT_TRUE(tooltip);
    GtkAllocation size;
    gtk_widget_get_allocation(tooltip, &size);
    EXPECT_LE(2 * size.width, gdk_screen_width());
    EXPECT_LE(2 * size.height, gdk_screen_height());
    ToggleTooltip("trusted_locations_treeview");
  }
}
