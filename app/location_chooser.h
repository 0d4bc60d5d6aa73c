// Choosing a file or a folder to trust.
#pragma once

#include "app/gnome_tcc_applet.h"

// Runs a file chooser over the window. The chosen local path, freed by the
// caller with g_free; null when the chooser was left. The folder in which it
// begins is a choice only when the user has typed it or gone back to it; until
// then the button Open does nothing.
char* choose_location(GtkWindow* parent, GtkFileChooserAction action,
                      const char* title);
