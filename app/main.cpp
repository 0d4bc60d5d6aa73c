// The settings panel of Corvane Player.
#include <cstdlib>

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/process_setup.h"

int main(int argc, char** argv) {
  PrepareProcess();
  // Fails without a display. --help works all the same; for everything else
  // parse_command_line reports it.
  (void)gtk_init_check(&argc, &argv);
  // Static, so that leak checkers still find it at the end.
  static GnomeTCCapplet* const panel = new_panel();
  char* page_name = nullptr;
  if (!parse_command_line(panel, &argc, &argv, &page_name)) {
    return EXIT_FAILURE;
  }
  const bool is_open = open_panel(panel, page_name);
  g_free(page_name);
  gtk_main();
  return is_open ? EXIT_SUCCESS : EXIT_FAILURE;
}
