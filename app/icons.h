// The pictures built into the program.
#pragma once

// Registers the permission icons as stock icons under the names that the UI
// definition and the lists use.
void register_permission_icons();

// Sets the default icons of all windows.
void set_window_icons();
