#include <clocale>
#include <cstdlib>
#include <utility>

#include "app/dialogs.h"
#include "app/widget_helpers.h"
#include "strings/languages.h"
#include "tests/app/panel_test.h"

using NCPStrings::Language;

namespace {

constexpr int kLargestWidth = 800;
constexpr int kLargestHeight = 600;

// What the toolkit brings itself, and what people use.
constexpr char kBareTheme[] = "/dev/null";
constexpr char kUsualTheme[] = "/usr/share/themes/Adwaita/gtk-2.0/gtkrc";

// The locale is used for the toolkit's own texts, where the system has it.
struct LayoutCase {
  const char* locale;
  Language language;
  GtkTextDirection direction = GTK_TEXT_DIR_LTR;
};

constexpr LayoutCase kCases[] = {
    {"en_US.UTF-8", Language::kEnglish},
    {"cs_CZ.UTF-8", Language::kCzech},
    {"de_DE.UTF-8", Language::kGerman},
    {"es_ES.UTF-8", Language::kSpanish},
    {"fr_FR.UTF-8", Language::kFrench},
    {"it_IT.UTF-8", Language::kItalian},
    {"ja_JP.UTF-8", Language::kJapanese},
    {"ko_KR.UTF-8", Language::kKorean},
    {"nl_NL.UTF-8", Language::kDutch},
    {"pl_PL.UTF-8", Language::kPolish},
    {"pt_BR.UTF-8", Language::kPortuguese},
    {"ru_RU.UTF-8", Language::kRussian},
    {"sv_SE.UTF-8", Language::kSwedish},
    {"tr_TR.UTF-8", Language::kTurkish},
    {"zh_CN.UTF-8", Language::kSimplifiedChinese},
    {"zh_TW.UTF-8", Language::kTraditionalChinese},
    {"he_IL.UTF-8", Language::kEnglish, GTK_TEXT_DIR_RTL},
};

void PrintTo(const LayoutCase& layout, std::ostream* out) {
  *out << layout.locale;
}

class FixedLanguage : public LocalizedStringManager {
 public:
  explicit FixedLanguage(Language language) : language_(language) {}
  int GetCurrentSystemLanguageID() override {
    return static_cast<int>(language_);
  }

 private:
  Language language_;
};

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

class LayoutTest : public PanelTest,
                   public testing::WithParamInterface<LayoutCase> {
 protected:
  LayoutTest() { home_.AddSites({"example.com", "shop.example.com"}); }

  // The toolkit takes its own texts from the locale when it starts.
  void Open(const char* theme) {
    setenv("GTK2_RC_FILES", theme, 1);
    if (std::setlocale(LC_ALL, GetParam().locale)) {
      setenv("LC_ALL", GetParam().locale, 1);
    }
    gtk_widget_set_default_direction(GetParam().direction);
    static FixedLanguage language(GetParam().language);
    delete std::exchange(NewPanelForProcess()->strings, &language);
    Start();
  }

  static void Check(GtkWidget* window) {
    Settle();
    SCOPED_TRACE(gtk_window_get_title(GTK_WINDOW(window)));
    int width = 0;
    int height = 0;
    gtk_window_get_size(GTK_WINDOW(window), &width, &height);
    EXPECT_LE(width, kLargestWidth);
    EXPECT_LE(height, kLargestHeight);
    ExpectNothingClipped(window, nullptr);
  }

  void CheckAll();
  void CheckDialog(const char* id) {
    GtkWidget* dialog = Widget(id);
    gtk_widget_show(dialog);
    Check(dialog);
    gtk_widget_hide(dialog);
  }
};

void LayoutTest::CheckAll() {
  for (int page = 0; page < 4; ++page) {
    SCOPED_TRACE(page);
    GoToPage(page);
    Check(panel_->window);
  }
  for (const SitePermission& list : kSitePermissions) {
    Click(list.add_button);
    CheckDialog("new_site_dialog");
    CheckDialog(list.dialog);
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

TEST_P(LayoutTest, ShowsEveryTextWhole) {
  Open(kUsualTheme);
  CheckAll();
}

TEST_P(LayoutTest, ShowsEveryTextWholeWithoutATheme) {
  Open(kBareTheme);
  CheckAll();
}

INSTANTIATE_TEST_SUITE_P(, LayoutTest, testing::ValuesIn(kCases),
                         [](const auto& param) {
                           return std::string(param.param.locale).substr(0, 5);
                         });
