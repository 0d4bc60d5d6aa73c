#include "app/command_line.h"

#include <libintl.h>

#include <cstdio>
#include <string>

#include "app/widget_helpers.h"
#include "strings/placeholder.h"
#include "strings/text_ids.h"

namespace {

constexpr char kTextDomain[] = "corvane-player-properties";
constexpr char kPageNames[] = "(privacy|storage|playback|advanced)";

// The toolkit's message ends with the display of the command line, but is
// without the one of the environment.
const char* UnnamedDisplay(const GError* error) {
  const bool is_about_display =
      g_error_matches(error, G_OPTION_ERROR, G_OPTION_ERROR_FAILED) &&
      !gdk_display_get_default();
  const char* name = g_getenv("DISPLAY");
  return is_about_display && name && !gdk_get_display_arg_name() ? name : "";
}

}  // namespace

bool parse_command_line(GnomeTCCapplet* panel, int* argc, char*** argv,
                        char** page_name) {
  const std::string description = FillPlaceholder(
      text_or(panel, 11401, "Specify the name of the page to show %s"),
      kPageNames);
  const GOptionEntry options[] = {
      {"show-page", 'p', 0, G_OPTION_ARG_STRING, page_name, description.c_str(),
       text_or(panel, 11402, "page")},
      {}};
  const std::string usage =
      std::string("- ") +
      text_or(panel, kPanelTitleId, "Tessary Corvane Player settings");
  GOptionContext* context = g_option_context_new(usage.c_str());
  g_option_context_add_main_entries(context, options, kTextDomain);
  bind_textdomain_codeset(kTextDomain, "UTF-8");
  textdomain(kTextDomain);
  g_option_context_set_translation_domain(context, kTextDomain);
  constexpr gboolean kOpensDisplay = TRUE;
  g_option_context_add_group(context, gtk_get_option_group(kOpensDisplay));
  GError* error = nullptr;
  const bool parsed = g_option_context_parse(context, argc, argv, &error);
  if (!parsed) {
    std::fprintf(stderr, "%s%s\n", error->message, UnnamedDisplay(error));
    g_error_free(error);
  }
  g_option_context_free(context);
  return parsed;
}
