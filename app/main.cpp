// The settings panel of Corvane Player.
#include <cstdlib>

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/process_setup.h"

int main(int argc, char** argv) {
  PrepareProcess();
  // Without a display --help still answers, and everything else is told by
  // the command line's own message.
  (void)gtk_init_check(&argc, &argv);
  // Known to the end, since it is never freed.
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
