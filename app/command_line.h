// The command line.
#pragma once

#include "app/gnome_tcc_applet.h"

// Parses the program's options and the toolkit's, and opens the display.
// `*page_name` becomes the name of the requested page, or null; the caller
// frees it with g_free. On a wrong command line, or without a display, prints
// a line on standard error and returns false.
[[nodiscard]] bool parse_command_line(GnomeTCCapplet* panel, int* argc,
                                      char*** argv, char** page_name);
