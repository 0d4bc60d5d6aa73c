// Starts the panel and leaves a picture of each of its pages and dialogs.
//
// Usage: pictures DIRECTORY [OPTION OF THE PANEL...]
//
// Shows what the settings of the user hold, and changes none of them.
#include <cstdlib>
#include <string>

#include "app/command_line.h"
#include "app/dialogs.h"
#include "app/lists.h"
#include "app/notebook_pages.h"
#include "app/start_up.h"

namespace {

// What is said when site data cannot be deleted.
constexpr int kErrorTitle = 11500;
constexpr int kErrorMessage = 11501;
constexpr char kLocation[] = "/home/user/Projects/Planets";

struct Picture {
  const char* file;
  NotebookPage page;
  // The dialog on top of that page; null for the page itself.
  const char* dialog;
  // The button whose click shows the dialog; null where it waits for the
  // answer, and is shown without being run.
  const char* opener;
};

constexpr Picture kPictures[] = {
    {"storage", kStoragePage, nullptr, nullptr},
    {"camera_and_mic", kPrivacyPage, nullptr, nullptr},
    {"playback", kPlaybackPage, nullptr, nullptr},
    {"advanced", kAdvancedPage, nullptr, nullptr},
    {"storage_by_site", kStoragePage, kLists[kStorageList].dialog,
     kLists[kStorageList].page_button},
    {"storage_new_site", kStoragePage, "new_site_dialog",
     kLists[kStorageList].add_button},
    {"block_all_storage", kStoragePage, "deny_all_storage_prompt_dialog",
     nullptr},
    {"camera_and_mic_by_site", kPrivacyPage, kLists[kCameraList].dialog,
     kLists[kCameraList].page_button},
    {"camera_and_mic_new_site", kPrivacyPage, "new_site_dialog",
     kLists[kCameraList].add_button},
    {"peer_assisted_by_site", kPlaybackPage, kLists[kNetworkList].dialog,
     kLists[kNetworkList].page_button},
    {"peer_assisted_new_site", kPlaybackPage, "new_site_dialog",
     kLists[kNetworkList].add_button},
    {"reset_licences", kPlaybackPage, "reset_drm_prompt_dialog", nullptr},
    {"clear_site_data", kAdvancedPage, "clear_site_data_dialog", nullptr},
    {"trusted_locations", kAdvancedPage, kLists[kLocationList].dialog,
     kLists[kLocationList].page_button},
    {"edit_trusted_location", kAdvancedPage, "trusted_location_edit_dialog",
     nullptr},
};

// Runs the main loop until nothing more comes: whatever was shown is then
// laid out and drawn.
void Settle() {
  constexpr int kQuietRounds = 3;
  for (int quiet = 0; quiet < kQuietRounds; ++quiet) {
    gdk_display_sync(gdk_display_get_default());
    while (gtk_events_pending()) {
      gtk_main_iteration();
      quiet = 0;
    }
    g_usleep(G_USEC_PER_SEC / 100);
  }
  gdk_window_process_all_updates();
}

bool Save(GtkWidget* window, const std::string& path) {
  Settle();
  GtkAllocation size;
  gtk_widget_get_allocation(window, &size);
  GdkPixbuf* picture = gdk_pixbuf_get_from_drawable(
      nullptr, gtk_widget_get_window(window), nullptr, 0, 0, 0, 0, size.width,
      size.height);
  GError* error = nullptr;
  if (!gdk_pixbuf_save(picture, path.c_str(), "png", &error, nullptr)) {
    g_printerr("%s\n", error->message);
    g_error_free(error);
    return false;
  }
  g_object_unref(picture);
  return true;
}

GtkWidget* Show(GnomeTCCapplet* panel, const Picture& picture) {
  if (!picture.dialog) return panel->window;
  GtkWidget* dialog = get_widget(panel->builder, picture.dialog);
  if (picture.opener) {
    gtk_button_clicked(GTK_BUTTON(get_widget(panel->builder, picture.opener)));
  } else {
    gtk_widget_show(dialog);
  }
  return dialog;
}

bool Take(GnomeTCCapplet* panel, const Picture& picture,
          const std::string& directory) {
  gtk_notebook_set_current_page(
      GTK_NOTEBOOK(get_widget(panel->builder, "tessary_corvane_notebook")),
      picture.page);
  GtkWidget* window = Show(panel, picture);
  const bool is_saved = Save(window, directory + "/" + picture.file + ".png");
  if (window != panel->window) gtk_widget_hide(window);
  return is_saved;
}

bool TakeErrorDialog(GnomeTCCapplet* panel, const std::string& directory) {
  GtkWidget* dialog = show_error_dialog(
      GTK_WINDOW(panel->window), text_or(panel, kErrorTitle, nullptr),
      text_or(panel, kErrorMessage, nullptr), nullptr);
  const bool is_saved = Save(dialog, directory + "/error.png");
  gtk_widget_destroy(dialog);
  return is_saved;
}

}  // namespace

int main(int argc, char** argv) {
  if (!gtk_init_check(&argc, &argv) || argc < 2) {
    g_printerr(
        "Usage: pictures DIRECTORY [OPTION OF THE PANEL...]\n"
        "Needs a display.\n");
    return EXIT_FAILURE;
  }
  const std::string directory = argv[1];
  argv[1] = argv[0];
  --argc;
  ++argv;
  GnomeTCCapplet* panel = new_panel();
  char* page_name = nullptr;
  if (!parse_command_line(panel, &argc, &argv, &page_name) ||
      !open_panel(panel, page_name)) {
    return EXIT_FAILURE;
  }
  g_free(page_name);
  gtk_entry_set_text(
      GTK_ENTRY(get_widget(panel->builder, "trusted_location_entry")),
      kLocation);
  bool are_saved = TakeErrorDialog(panel, directory);
  for (const Picture& picture : kPictures) {
    are_saved = Take(panel, picture, directory) && are_saved;
  }
  return are_saved ? EXIT_SUCCESS : EXIT_FAILURE;
}
