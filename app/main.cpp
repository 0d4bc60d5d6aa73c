// The settings panel of Corvane Player.
#include <cstdlib>

#include "app/command_line.h"
#include "app/start_up.h"
#include "platform/process_setup.h"

namespace {

// In place of the end of the toolkit's main loop. That writes the user's recent
// files once a location has been chosen, as they were then: what other programs
// have added since would be lost.
gboolean EndProgram(gpointer) {
  gtk_clipboard_store(gtk_clipboard_get(GDK_SELECTION_CLIPBOARD));
  std::exit(EXIT_SUCCESS);
}

}  // namespace

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
  constexpr guint kOutermost = 1;
  if (open_panel(panel, page_name)) {
    gtk_quit_add(kOutermost, EndProgram, nullptr);
  }
  g_free(page_name);
  gtk_main();  // returns when the error dialog of a failed start is closed
  return EXIT_FAILURE;
}
