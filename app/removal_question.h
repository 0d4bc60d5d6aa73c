// The question before a key removes several sites.
#pragma once

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"

// Names the selected sites and asks whether to remove them; true when the user
// says so.
bool confirm_removal(GnomeTCCapplet* panel, const List& list);
