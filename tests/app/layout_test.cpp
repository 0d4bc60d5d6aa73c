#include <clocale>
#include <cstdlib>

#include "app/dialogs.h"
#include "app/lists.h"
#include "app/removal_question.h"
#include "strings/languages.h"
#include "tests/app/panel_test.h"

namespace {

constexpr int kLargestWidth = 800;
constexpr int kLargestHeight = 600;
constexpr char kLargestFont[] = "Sans 11";

// The toolkit's own look, and the usual theme.
constexpr char kBareTheme[] = "/dev/null";
constexpr char kUsualTheme[] = "/usr/share/themes/Adwaita/gtk-2.0/gtkrc";

void ExpectTextFits(GtkLabel* label) {
  GtkAllocation room;
  gtk_widget_get_allocation(GTK_WIDGET(label), &room);
  int width = 0;
  int height = 0;
  PangoLayout* layout = gtk_label_get_layout(label);
  pango_layout_get_pixel_size(layout, &width, &height);
  EXPECT_LE(width, room.width) << gtk_label_get_text(label);
  EXPECT_LE(height, room.height) << gtk_label_get_text(label);
  EXPECT_FALSE(pango_layout_is_ellipsized(layout)) << gtk_label_get_text(label);
}

void ExpectColumnsFit(GtkTreeView* view) {
  GtkAdjustment* across = gtk_tree_view_get_hadjustment(view);
  EXPECT_LE(gtk_adjustment_get_upper(across),
            gtk_adjustment_get_page_size(across));
}

void ExpectNothingClipped(GtkWidget* widget, gpointer) {
  if (!gtk_widget_get_mapped(widget)) return;
  const char* id = gtk_buildable_get_name(GTK_BUILDABLE(widget));
  SCOPED_TRACE(id ? id : G_OBJECT_TYPE_NAME(widget));
  if (GTK_IS_LABEL(widget)) ExpectTextFits(GTK_LABEL(widget));
  if (GTK_IS_TREE_VIEW(widget)) ExpectColumnsFit(GTK_TREE_VIEW(widget));
  if (GTK_IS_BUTTON(widget) || GTK_IS_ENTRY(widget) ||
      GTK_IS_COMBO_BOX(widget)) {
    GtkAllocation room;
    gtk_widget_get_allocation(widget, &room);
    GtkRequisition wanted;
    gtk_widget_get_child_requisition(widget, &wanted);
    EXPECT_GE(room.width, wanted.width);
    EXPECT_GE(room.height, wanted.height);
  }
  if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(GTK_CONTAINER(widget), ExpectNothingClipped, nullptr);
  }
}

}  // namespace

// In a language, with or without a theme.
class LayoutTest : public PanelTest,
                   public testing::WithParamInterface<std::tuple<int, bool>> {
 protected:
  void SetUp() override {
    home_.AddSites({"example.com", "shop.example.com"});
    const auto [language, has_theme] = GetParam();
    const std::string locale = NCPStrings::kLanguages[language].locale;
    setenv("GTK2_RC_FILES", has_theme ? kUsualTheme : kBareTheme, 1);
    setenv("LC_ALL", (locale + ".UTF-8").c_str(), 1);
    ASSERT_TRUE(std::setlocale(LC_ALL, ""))
        << "there are no locales: run these tests as ./test does";
    gtk_init(nullptr, nullptr);
    g_object_set(gtk_settings_get_default(), "gtk-font-name", kLargestFont,
                 nullptr);
    // As for a user whose own language is written from right to left.
    gtk_widget_set_default_direction(GTK_TEXT_DIR_RTL);
    Start();
  }

  static void Check(GtkWidget* window) {
    Settle();
    SCOPED_TRACE(gtk_window_get_title(GTK_WINDOW(window)));
    int width = 0;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(window), &width, &height);
    EXPECT_EQ(gtk_widget_get_direction(window), GTK_TEXT_DIR_LTR);
    EXPECT_LE(width, kLargestWidth);
    EXPECT_LE(height, kLargestHeight);
    ExpectNothingClipped(window, nullptr);
  }

  // The question that waits for an answer, and says no.
  static gboolean CheckQuestion(gpointer) {
    GtkWidget* question = gtk_grab_get_current();
    Check(question);
    gtk_dialog_response(GTK_DIALOG(question), GTK_RESPONSE_CANCEL);
    return FALSE;
  }

  void CheckDialog(const char* id) {
    GtkWidget* dialog = Widget(id);
    gtk_widget_show(dialog);
    Check(dialog);
    gtk_widget_hide(dialog);
  }
};

TEST_P(LayoutTest, ShowsEveryTextWhole) {
  for (int page = 0; page < 4; ++page) {
    SCOPED_TRACE(page);
    GoToPage(page);
    Check(panel_->window);
  }
  for (const List& list : kSiteLists) {
    Click(list.add_button);
    CheckDialog("new_site_dialog");
    CheckDialog(list.dialog);
    Select(list.tree_view, {0, 1});
    g_idle_add(CheckQuestion, nullptr);
    EXPECT_FALSE(confirm_removal(panel_, list));
  }
  for (const char* id :
       {"deny_all_storage_prompt_dialog", "clear_site_data_dialog",
        "reset_drm_prompt_dialog", "compat_settings_dialog",
        "trusted_location_edit_dialog"}) {
    CheckDialog(id);
  }
  for (const int message : {11501, 11502}) {
    Check(show_error_dialog(GTK_WINDOW(panel_->window),
                            text_or(panel_, 11500, nullptr),
                            text_or(panel_, message, nullptr), nullptr));
  }
}

INSTANTIATE_TEST_SUITE_P(
    , LayoutTest,
    testing::Combine(testing::Range(0, int{NCPStrings::kLanguageCount}),
                     testing::Bool()),
    [](const auto& with) {
      return NCPStrings::kLanguages[std::get<0>(with.param)].locale +
             std::string(std::get<1>(with.param) ? "" : "_without_theme");
    });
