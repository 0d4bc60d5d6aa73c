// The command line.
#pragma once

#include "app/gnome_tcc_applet.h"

// Takes the program's options, and the toolkit's, which opens the display.
// `*page_name` becomes the name of the page to show, freed by the caller with
// g_free; null when none was asked for. False when the command line is bad or
// there is no display, after a line on standard error.
[[nodiscard]] bool parse_command_line(GnomeTCCapplet* panel, int* argc,
                                      char*** argv, char** page_name);
