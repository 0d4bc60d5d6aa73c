// Shows dialogs and handles their answers.
#pragma once

#include "app/widget_helpers.h"

// Shows a non-modal error dialog with a Close button that destroys it,
// clear of the one that was shown before it.
// `message_format` ("Error" for null) has one placeholder, which is replaced by
// the message of `error`, or by nothing for null. Frees `error`. The dialog
// belongs to GTK.
GtkWidget* show_error_dialog(GtkWindow* parent, const char* title,
                             const char* message_format, GError* error);

// Runs the dialog modally and hides it. True when it was answered with OK.
[[nodiscard]] bool run_dialog(GnomeTCCapplet* panel, const char* dialog_id);

// Shows the dialog non-modally, in front and over the parent. A title string
// id other than 0 sets its title.
void show_dialog_over(GnomeTCCapplet* panel, const char* dialog_id,
                      const char* parent_id, int title_string_id);

// Lets a wrapped label take the width of a dialog that a long button widens.
void widen_label_with_dialog(GnomeTCCapplet* panel, const char* label_id);

// Signal handlers that many objects of the UI definition share.
extern "C" {
// Ends the program when the main window is answered. Hides any other dialog,
// which keeps its state.
G_MODULE_EXPORT void dialog_button_cb(GtkDialog* dialog, gint response_id,
                                      GnomeTCCapplet* panel);
// Fixes the width at which a label wraps when it is first allocated.
G_MODULE_EXPORT void wrapped_label_size_allocate_fix(GtkWidget* label,
                                                     GtkAllocation* allocation,
                                                     gpointer user_data);
}
