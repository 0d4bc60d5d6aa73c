#include <gmock/gmock.h>
#include <gmodule.h>

#include "app/notebook_pages.h"
#include "app/ui_definition.h"
#include "app/widget_helpers.h"
#include "tests/app/panel_test.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// What the UI definition says, counted by the XML parser.
struct Definition {
  int objects = 0;
  int signals = 0;
  std::vector<std::string> unresolved_handlers;
};

void TakeElement(GMarkupParseContext*, const char* element, const char** names,
                 const char** values, gpointer data, GError**) {
  auto* definition = static_cast<Definition*>(data);
  if (std::string_view(element) == "object") ++definition->objects;
  if (std::string_view(element) != "signal") return;
  ++definition->signals;
  static GModule* const program = g_module_open(nullptr, G_MODULE_BIND_LAZY);
  for (; *names; ++names, ++values) {
    gpointer function = nullptr;
    if (std::string_view(*names) == "handler" &&
        !g_module_symbol(program, *values, &function)) {
      definition->unresolved_handlers.emplace_back(*values);
    }
  }
}

}  // namespace

TEST(UiDefinition, NamesOnlyHandlersThatTheProgramExports) {
  Definition definition;
  const GMarkupParser parser = {TakeElement, nullptr, nullptr, nullptr,
                                nullptr};
  GMarkupParseContext* context = g_markup_parse_context_new(
      &parser, GMarkupParseFlags{}, &definition, nullptr);
  EXPECT_TRUE(g_markup_parse_context_parse(
      context, gnome_tessary_corvane_properties_ui,
      gnome_tessary_corvane_properties_ui_len, nullptr));
  EXPECT_TRUE(g_markup_parse_context_end_parse(context, nullptr));
  g_markup_parse_context_free(context);
  EXPECT_EQ(definition.objects, 201);
  EXPECT_EQ(definition.signals, 65);
  EXPECT_THAT(definition.unresolved_handlers, IsEmpty());
}

struct PageName {
  const char* name;
  int page;
};

void PrintTo(const PageName& page, std::ostream* out) {
  *out << "page " << page.page;
}

class PageNameTest : public PanelTest,
                     public testing::WithParamInterface<PageName> {};

// A page that the program does not start with is not filled before its turn.
TEST_P(PageNameTest, ShowsAndFillsThatPageOnly) {
  home_.AddSites({"a.example"});
  Start(GetParam().name);
  EXPECT_EQ(gtk_notebook_get_current_page(
                GTK_NOTEBOOK(Widget("tessary_corvane_notebook"))),
            GetParam().page);
  const struct {
    const char* list;
    int page;
  } lists[] = {{"site_storage_list", kStoragePage},
               {"site_privacy_list", kPrivacyPage},
               {"site_p2p_list", kPlaybackPage}};
  for (const auto& list : lists) {
    SCOPED_TRACE(list.list);
    const std::size_t rows = list.page == GetParam().page ? 1 : 0;
    EXPECT_EQ(Column(list.list, 0).size(), rows);
  }
}

INSTANTIATE_TEST_SUITE_P(
    , PageNameTest,
    testing::Values(
        PageName{nullptr, kStoragePage}, PageName{"storage", kStoragePage},
        PageName{"privacy", kPrivacyPage}, PageName{"playback", kPlaybackPage},
        PageName{"advanced", kAdvancedPage}, PageName{"nonsense", kStoragePage},
        // Boxes that are no pages of the notebook.
        PageName{"storage_by_site", kAdvancedPage},
        PageName{"privacy_settings", kAdvancedPage}),
    [](const auto& param) {
      return std::string(param.param.name ? param.param.name : "none");
    });

using StartUpTest = PanelTest;

TEST_F(StartUpTest, FillingPagesWritesNothing) {
  home_.AddSites({"a.example", "b.example"});
  home_.AddLocations({"/srv/media"});
  Start();
  Choose("storage_prompt_radiobutton");
  GoToPage(kPrivacyPage);
  Choose("site_privacy_always_deny_rbutton");
  GoToPage(kPlaybackPage);
  Choose("site_p2p_always_deny_rbutton");
  const auto before = home_.Disk();
  for (const int page : {0, 1, 2, 3, 0, 3, 1, 2}) GoToPage(page);
  update_notebook_page(panel_, kCurrentPage);
  Settle();
  EXPECT_EQ(home_.Disk(), before);
}

TEST_F(StartUpTest, PreparesLinksListsAndChoices) {
  Start();
  const struct {
    const char* button;
    const char* topic;
  } links[] = {{"privacy_linkbutton", "privacy_controls"},
               {"private_browsing_linkbutton", "private_browsing"},
               {"p2p_linkbutton", "peer_assisted_networking"},
               {"drm_linkbutton", "protected_content"},
               {"compat_linkbutton", "trusted_locations"}};
  for (const auto& link : links) {
    EXPECT_EQ(gtk_link_button_get_uri(GTK_LINK_BUTTON(Widget(link.button))),
              std::string("http://www.tessary.example/go/"
                          "learn_cp_settings_") +
                  link.topic + "_en");
  }
  for (const char* id : {"site_storage_treeview", "site_privacy_treeview",
                         "site_p2p_treeview", "trusted_locations_treeview"}) {
    EXPECT_EQ(gtk_tree_selection_get_mode(gtk_tree_view_get_selection(
                  get_tree_view(panel_->builder, id))),
              GTK_SELECTION_MULTIPLE);
  }
  EXPECT_THAT(Column("permission_settings", 0),
              ElementsAre("Block", "Ask me for permission", "Allow"));
}

// A response of the main window ends the loop that main runs.
TEST_F(StartUpTest, AnsweringTheMainWindowEndsTheProgram) {
  Start();
  g_idle_add(
      [](gpointer window) -> gboolean {
        gtk_dialog_response(GTK_DIALOG(window), GTK_RESPONSE_DELETE_EVENT);
        return G_SOURCE_REMOVE;
      },
      panel_->window);
  gtk_main();
}
