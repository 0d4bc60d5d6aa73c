#include "app/widget_helpers.h"

#include <gmock/gmock.h>

#include "app/dialogs.h"
#include "tests/app/panel_test.h"

using testing::ElementsAre;

namespace {

constexpr int kNoSuchText = 1;

}  // namespace

class WidgetHelpersTest : public PanelTest {
 protected:
  WidgetHelpersTest() { Start(); }

  std::string LabelAfter(const char* text, const char* tag) {
    set_label_text(panel_, "label12", kNoSuchText, text, tag);
    return gtk_label_get_label(GTK_LABEL(Widget("label12")));
  }
};

TEST_F(WidgetHelpersTest, HeadingsEndInNoColon) {
  EXPECT_EQ(LabelAfter("Updates:", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates:", "i"), "<i>Updates:</i>");
  EXPECT_EQ(LabelAfter("Updates:", nullptr), "Updates:");
  EXPECT_EQ(LabelAfter(nullptr, "b"), "Updates:");
}

TEST_F(WidgetHelpersTest, KnowsWhatIsNoPermission) {
  for (const int value : {0, 4, -1}) {
    const auto state = static_cast<PermissionState>(value);
    EXPECT_STREQ(permission_state_text(panel_, state), "Unknown");
    EXPECT_STREQ(permission_state_icon(state), "icon_corvane_unknown");
  }
}

TEST_F(WidgetHelpersTest, ErrorDialogsStayOpenBesideEachOther) {
  GtkWidget* dialog = show_error_dialog(nullptr, nullptr, nullptr, nullptr);
  show_error_dialog(GTK_WINDOW(panel_->window), "Title", "Lost: %s.",
                    g_error_new(G_FILE_ERROR, 0, "%%s <b>"));
  show_error_dialog(GTK_WINDOW(panel_->window), "Title", "Lost: %s.", nullptr);
  Settle();
  EXPECT_THAT(Errors(),
              testing::UnorderedElementsAre(": Error", "Title: Lost: %s <b>.",
                                            "Title: Lost: ."));
  gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CLOSE);
  EXPECT_EQ(Errors().size(), 2U);
}

// The width a label wraps at is that of its first allocation, less a little.
TEST_F(WidgetHelpersTest, WrappedLabelsKeepTheirFirstWidth) {
  GtkWidget* label = Widget("storage_explanatory_label");
  int first = 0;
  gtk_widget_get_size_request(label, &first, nullptr);
  EXPECT_GT(first, 100);
  gtk_window_resize(GTK_WINDOW(panel_->window), 900, 700);
  Settle();
  int later = 0;
  gtk_widget_get_size_request(label, &later, nullptr);
  EXPECT_EQ(later, first);
}
