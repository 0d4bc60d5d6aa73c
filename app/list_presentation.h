// What every list does beyond what the UI definition can say.
#pragma once

#include "app/gnome_tcc_applet.h"

// Several rows can be selected; names show whatever bytes they hold, and whole
// in a row's tooltip; Delete does what the list's Remove button does.
void prepare_lists(GnomeTCCapplet* panel);

// Gives the lists and what stands without a label of its own the names by
// which a screen reader knows them.
void set_accessible_names(GnomeTCCapplet* panel);
