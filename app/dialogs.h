// Showing and answering dialogs.
#pragma once

#include "app/widget_helpers.h"

// Shows a non-modal error dialog with a Close button that destroys it.
// `message_format` ("Error" for null) has one placeholder, for the message of
// `error`, which is freed; without an error it is filled with nothing. The
// dialog is borrowed from GTK.
GtkWidget* show_error_dialog(GtkWindow* parent, const char* title,
                             const char* message_format, GError* error);

// Runs the dialog modally and hides it. True when it was answered with OK.
[[nodiscard]] bool run_dialog(GnomeTCCapplet* panel, const char* dialog_id);

// Shows the dialog non-modally on top of the parent. With a title string id
// other than 0 it gets that title.
void show_dialog_over(GnomeTCCapplet* panel, const char* dialog_id,
                      const char* parent_id, int title_string_id);

// Handlers of many objects of the UI definition, found by name.
extern "C" {
// An answer ends the program when it is the main window's; every other dialog
// is hidden and keeps its state.
G_MODULE_EXPORT void dialog_button_cb(GtkDialog* dialog, gint response_id,
                                      GnomeTCCapplet* panel);
// Fixes the width at which a wrapping label wraps, at its first allocation.
G_MODULE_EXPORT void wrapped_label_size_allocate_fix(GtkWidget* label,
                                                     GtkAllocation* allocation,
                                                     gpointer user_data);
}
