// The list of trusted file-system locations.
#pragma once

#include "app/gnome_tcc_applet.h"

// Makes editing a row begin with the location itself, not with what is shown.
void prepare_location_editing(GnomeTCCapplet* panel);
