// The list of trusted file-system locations.
#pragma once

#include "app/gnome_tcc_applet.h"

// Lets a row be edited as the location it stands for, not as it is shown.
void prepare_location_editing(GnomeTCCapplet* panel);
