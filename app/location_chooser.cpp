#include "app/location_chooser.h"

#include "app/shortcuts.h"

namespace {

// A trusted location has not been opened: it does not belong in the user's
// recent files, and the toolkit prints a warning where it cannot write those.
void KeepOutOfRecentFiles() {
  auto* recent_files = GTK_RECENT_MANAGER_CLASS(
      g_type_class_ref(GTK_TYPE_RECENT_MANAGER));  // never released
  recent_files->changed = nullptr;
}

// The chooser otherwise begins with recent files, where it loses the first keys
// that are typed.
const char* FirstFolder() { return g_get_home_dir(); }

// Takes over the path, which may be null.
bool IsElsewhere(char* path) {
  if (!path) return false;
  GFile* first = g_file_new_for_path(FirstFolder());
  GFile* file = g_file_new_for_path(path);
  const bool is_same = g_file_equal(first, file);
  g_object_unref(first);
  g_object_unref(file);
  g_free(path);
  return !is_same;
}

void NoteFolder(GtkFileChooser* chooser, gpointer has_choice) {
  if (IsElsewhere(gtk_file_chooser_get_current_folder(chooser))) {
    *static_cast<bool*>(has_choice) = true;
  }
}

// In an entry that shows.
void FindTypedText(GtkWidget* widget, gpointer is_found) {
  if (!gtk_widget_get_visible(widget)) return;
  if (GTK_IS_ENTRY(widget) && gtk_entry_get_text_length(GTK_ENTRY(widget))) {
    *static_cast<bool*>(is_found) = true;
  }
  if (GTK_IS_CONTAINER(widget)) {
    gtk_container_forall(GTK_CONTAINER(widget), FindTypedText, is_found);
  }
}

GtkWidget* NewChooser(GtkWindow* parent, GtkFileChooserAction action,
                      const char* title) {
  GtkWidget* chooser = gtk_file_chooser_dialog_new(
      title, parent, action, "gtk-cancel", GTK_RESPONSE_CANCEL, "gtk-open",
      GTK_RESPONSE_ACCEPT, nullptr);
  gtk_dialog_set_default_response(GTK_DIALOG(chooser), GTK_RESPONSE_ACCEPT);
  gtk_file_chooser_set_current_folder(GTK_FILE_CHOOSER(chooser), FirstFolder());
  share_shortcuts(parent, GTK_WINDOW(chooser));
  return chooser;
}

}  // namespace

char* choose_location(GtkWindow* parent, GtkFileChooserAction action,
                      const char* title) {
  KeepOutOfRecentFiles();
  GtkWidget* chooser = NewChooser(parent, action, title);
  bool has_choice = false;
  g_signal_connect(chooser, "current-folder-changed", G_CALLBACK(NoteFolder),
                   &has_choice);
  int response = 0;
  do {
    response = gtk_dialog_run(GTK_DIALOG(chooser));
    FindTypedText(chooser, &has_choice);
    has_choice =
        has_choice ||
        IsElsewhere(gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(chooser)));
  } while (response == GTK_RESPONSE_ACCEPT && !has_choice);
  char* path = response == GTK_RESPONSE_ACCEPT
                   ? gtk_file_chooser_get_filename(GTK_FILE_CHOOSER(chooser))
                   : nullptr;
  gtk_widget_destroy(chooser);
  return path;
}
