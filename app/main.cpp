// The settings panel of Corvane Player.
#include <cstdlib>

#include "app/command_line.h"
#include "app/icons.h"
#include "app/list_presentation.h"
#include "app/list_sorting.h"
#include "app/localize_widgets.h"
#include "app/start_up.h"

int main(int argc, char** argv) {
  // Without a display --help still answers, and everything else is told by
  // the command line's own message.
  (void)gtk_init_check(&argc, &argv);
  GnomeTCCapplet* panel = new_panel();
  char* page_name = nullptr;
  if (!parse_command_line(panel, &argc, &argv, &page_name)) {
    return EXIT_FAILURE;
  }
  register_permission_icons();
  open_settings(panel);
  if (!load_ui(panel)) {
    gtk_main();
    return EXIT_FAILURE;
  }
  set_window_icons();
  connect_signals(panel);
  select_page(panel, page_name);
  prepare_list_sorting(panel);
  prepare_lists(panel);
  set_links(panel);
  localize_widgets(panel);
  set_accessible_names(panel);
  gtk_widget_show(panel->window);
  g_free(page_name);
  gtk_main();
  return EXIT_SUCCESS;
}
