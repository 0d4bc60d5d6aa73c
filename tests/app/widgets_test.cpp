#include "app/dialogs.h"
#include "app/list_sorting.h"
#include "app/widget_helpers.h"
#include "tests/app/panel_test.h"

class WidgetsTest : public PanelTest {
 protected:
  WidgetsTest() { Start(); }

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

  int WidthOf(const char* widget) {
    int width = 0;
    gtk_widget_get_size_request(Widget(widget), &width, nullptr);
    return width;
  }
};

TEST_F(WidgetsTest, HeadingsEndInNoColon) {
  EXPECT_EQ(LabelAfter("Updates:", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates", "b"), "<b>Updates</b>");
  EXPECT_EQ(LabelAfter("Updates:", "i"), "<i>Updates:</i>");
  EXPECT_EQ(LabelAfter("Updates:", nullptr), "Updates:");
  EXPECT_EQ(LabelAfter(nullptr, "b"), "Updates:");
}

TEST_F(WidgetsTest, ErrorDialogsShowWhatTheyAreGiven) {
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

// A label wraps at the width of its first allocation, less a little.
TEST_F(WidgetsTest, WrappedLabelsKeepTheirFirstWidth) {
  const int first = WidthOf("storage_explanatory_label");
  EXPECT_GT(first, 100);
  gtk_window_resize(GTK_WINDOW(panel_->window), 900, 700);
  Settle();
  EXPECT_EQ(WidthOf("storage_explanatory_label"), first);
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
