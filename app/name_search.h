// Finding a row by typing a part of its name.
#pragma once

#include <gtk/gtk.h>

// What is typed into the list is looked for anywhere in the names, without
// regard to case. Up and Down go through the rows found.
void find_names_by_any_part(GtkTreeView* view);
