// The pictures that the program carries.
#pragma once

// Registers the permission icons as stock icons, by the names that the UI
// definition and the lists use.
void register_permission_icons();

// Gives every window of the program its icons, by default.
void set_window_icons();
