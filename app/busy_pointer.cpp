#include "app/busy_pointer.h"

namespace {

// On a slow disk, fewer take a tenth of a second.
constexpr unsigned int kManySites = 500;

void SetCursor(GdkCursor* cursor) {
  GList* windows = gtk_window_list_toplevels();
  for (GList* node = windows; node; node = node->next) {
    GdkWindow* window = gtk_widget_get_window(GTK_WIDGET(node->data));
    if (window) gdk_window_set_cursor(window, cursor);
  }
  g_list_free(windows);
}

// Paints what closed menus and dialogs have uncovered. All other events, the
// user's above all, wait for the main loop.
void PaintNow() {
  gdk_display_sync(gdk_display_get_default());
  GList* events = nullptr;  // taking them marks what is to be painted
  while (GdkEvent* event = gdk_event_get()) {
    events = g_list_prepend(events, event);
  }
  events = g_list_reverse(events);
  for (GList* node = events; node; node = node->next) {
    auto* event = static_cast<GdkEvent*>(node->data);
    gdk_event_put(event);
    gdk_event_free(event);
  }
  g_list_free(events);
  gdk_window_process_all_updates();
}

bool AreMany(GnomeTCCapplet* panel) {
  const SASM::SDIVector* sites = panel->settings->GetDomains();
  return sites && sites->count >= kManySites;
}

void Show() {
  GdkCursor* watch = gdk_cursor_new(GDK_WATCH);
  SetCursor(watch);
  gdk_cursor_unref(watch);
  PaintNow();
  gdk_flush();
}

}  // namespace

BusyPointer::BusyPointer(GnomeTCCapplet* panel) : is_shown_(AreMany(panel)) {
  if (is_shown_) Show();
}

BusyPointer::BusyPointer() : is_shown_(true) { Show(); }

BusyPointer::~BusyPointer() {
  if (is_shown_) SetCursor(nullptr);
}
