// The list of trusted file-system locations.
#pragma once

#include "app/gnome_tcc_applet.h"

// Refills the list from the stored locations and makes its Remove button
// insensitive.
void fill_trusted_locations(GnomeTCCapplet* panel);
