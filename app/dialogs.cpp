#include "app/dialogs.h"

#include <algorithm>
#include <string>

#include "app/shortcuts.h"
#include "strings/placeholder.h"

namespace {

// A label may later become this much narrower than its first allocation.
constexpr int kWrappedLabelSlack = 10;  // pixels

void WrapAtAllocatedWidth(GtkWidget* label, GtkAllocation* allocation,
                          gpointer) {
  int wrap_width = 0;
  gtk_widget_get_size_request(label, &wrap_width, nullptr);
  if (allocation->width <= wrap_width) return;
  gtk_widget_set_size_request(label, allocation->width, -1);
}

GdkRectangle FrameOf(GtkWidget* window) {
  GdkRectangle frame;
  gdk_window_get_frame_extents(gtk_widget_get_window(window), &frame);
  return frame;
}

// The error dialog shown last, null when it has gone.
GtkWidget* last_error_dialog = nullptr;

void ForgetErrorDialog(GtkWidget* dialog, gpointer) {
  if (last_error_dialog == dialog) last_error_dialog = nullptr;
}

// A window manager places dialogs of one parent on top of one another: moves
// the new one below the other, or above it where there is no room.
gboolean UncoverErrorDialog(GtkWidget* dialog, GdkEvent*, GtkWidget* covered) {
  if (!gtk_widget_get_visible(covered)) return FALSE;  // by now
  GdkRectangle place = FrameOf(dialog);
  const GdkRectangle other = FrameOf(covered);
  GdkRectangle overlap;
  if (!gdk_rectangle_intersect(&place, &other, &overlap)) return FALSE;
  place.y = other.y + other.height;
  if (place.y + place.height > gdk_screen_height()) {
    place.y = std::max(0, other.y - place.height);
  }
  gtk_window_move(GTK_WINDOW(dialog), place.x, place.y);
  return FALSE;
}

}  // namespace

GtkWidget* show_error_dialog(GtkWindow* parent, const char* title,
                             const char* message_format, GError* error) {
  const std::string message = FillPlaceholder(
      message_format ? message_format : "Error", error ? error->message : "");
  GtkWidget* dialog = gtk_message_dialog_new(
      parent, GTK_DIALOG_DESTROY_WITH_PARENT, GTK_MESSAGE_ERROR,
      GTK_BUTTONS_CLOSE, "%s", message.c_str());
  if (title) {
    gtk_window_set_title(GTK_WINDOW(dialog), title);
    // Instead of the word for an error, by which two could not be told apart.
    atk_object_set_name(gtk_widget_get_accessible(dialog), title);
  }
  if (last_error_dialog) {
    g_signal_connect_object(dialog, "map-event", G_CALLBACK(UncoverErrorDialog),
                            last_error_dialog, GConnectFlags{});
  }
  last_error_dialog = dialog;
  g_signal_connect(dialog, "destroy", G_CALLBACK(ForgetErrorDialog), nullptr);
  g_signal_connect(dialog, "response", G_CALLBACK(gtk_widget_destroy), nullptr);
  gtk_window_set_resizable(GTK_WINDOW(dialog), FALSE);
  share_shortcuts(parent, GTK_WINDOW(dialog));
  gtk_widget_show(dialog);
  if (error) g_error_free(error);
  return dialog;
}

bool run_dialog(GnomeTCCapplet* panel, const char* dialog_id) {
  GtkWidget* dialog = get_widget(panel->builder, dialog_id);
  // A hidden dialog keeps its focus. Next time, Enter would press the button
  // that was pressed last, which may be the one that deletes.
  gtk_window_set_focus(GTK_WINDOW(dialog),
                       gtk_window_get_default_widget(GTK_WINDOW(dialog)));
  const int response = gtk_dialog_run(GTK_DIALOG(dialog));
  gtk_widget_hide(dialog);
  return response == GTK_RESPONSE_OK;
}

void show_dialog_over(GnomeTCCapplet* panel, const char* dialog_id,
                      const char* parent_id, int title_string_id) {
  GtkWidget* dialog = get_widget(panel->builder, dialog_id);
  auto* parent = GTK_WINDOW(get_widget(panel->builder, parent_id));
  if (gtk_window_get_transient_for(GTK_WINDOW(dialog)) != parent) {
    gtk_widget_hide(dialog);  // to be placed over the new parent
  }
  gtk_window_set_transient_for(GTK_WINDOW(dialog), parent);
  if (title_string_id != 0) {
    set_window_title(panel, dialog_id, title_string_id, nullptr);
  }
  gtk_window_present(GTK_WINDOW(dialog));
}

void widen_label_with_dialog(GnomeTCCapplet* panel, const char* label_id) {
  g_signal_connect(get_widget(panel->builder, label_id), "size-allocate",
                   G_CALLBACK(WrapAtAllocatedWidth), nullptr);
}

extern "C" G_MODULE_EXPORT void dialog_button_cb(GtkDialog* dialog, gint,
                                                 GnomeTCCapplet* panel) {
  if (GTK_WIDGET(dialog) != panel->window) {
    gtk_widget_hide(GTK_WIDGET(dialog));
    return;
  }
  gtk_widget_destroy(panel->window);
  gtk_main_quit();
}

extern "C" G_MODULE_EXPORT void wrapped_label_size_allocate_fix(
    GtkWidget* label, GtkAllocation* allocation, gpointer user_data) {
  gtk_widget_set_size_request(label, allocation->width - kWrappedLabelSlack,
                              -1);
  g_signal_handlers_disconnect_by_func(
      label, reinterpret_cast<gpointer>(wrapped_label_size_allocate_fix),
      user_data);
}
