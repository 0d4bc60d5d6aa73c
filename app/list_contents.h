// Filling lists from the stored settings.
#pragma once

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"

// Refills the list and makes its Remove button insensitive. The rows are all
// listed sites or all trusted locations, in the order in which they are stored
// unless the user has sorted the list. Selection and cursor are lost with the
// old rows.
void fill_list(GnomeTCCapplet* panel, const List& list);
