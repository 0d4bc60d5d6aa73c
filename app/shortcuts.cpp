#include "app/shortcuts.h"

#include <gdk/gdkkeysyms.h>

#include "app/notebook_pages.h"

namespace {

using Action = gboolean (*)(GtkAccelGroup*, GObject*, guint, GdkModifierType,
                            gpointer);

gboolean ReadSettingsAgain(GtkAccelGroup*, GObject* window, guint,
                           GdkModifierType, gpointer data) {
  if (gtk_window_get_modal(GTK_WINDOW(window))) return TRUE;
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  // What could not be read has been reported, and is shown by its defaults.
  (void)panel->settings->LoadMasterSettingsFromDisk();
  update_notebook_page(panel, kCurrentPage);
  return TRUE;
}

gboolean CloseMainWindow(gpointer data) {
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  gtk_dialog_response(GTK_DIALOG(panel->window), GTK_RESPONSE_CLOSE);
  return FALSE;  // once
}

// Whoever waits for a dialog's answer gets it first.
gboolean Quit(GtkAccelGroup*, GObject* window, guint, GdkModifierType,
              gpointer panel) {
  if (gtk_window_get_modal(GTK_WINDOW(window))) {
    gtk_dialog_response(GTK_DIALOG(window), GTK_RESPONSE_DELETE_EVENT);
  }
  g_idle_add(CloseMainWindow, panel);
  return TRUE;
}

struct Shortcut {
  guint key;
  GdkModifierType modifiers;
  Action action;
};

constexpr Shortcut kShortcuts[] = {
    {GDK_F5, GdkModifierType{}, ReadSettingsAgain},
    {GDK_q, GDK_CONTROL_MASK, Quit},
};

GtkAccelGroup* NewShortcuts(GnomeTCCapplet* panel) {
  GtkAccelGroup* group = gtk_accel_group_new();
  for (const Shortcut& shortcut : kShortcuts) {
    gtk_accel_group_connect(
        group, shortcut.key, shortcut.modifiers, GtkAccelFlags{},
        g_cclosure_new(G_CALLBACK(shortcut.action), panel, nullptr));
  }
  return group;
}

}  // namespace

void prepare_shortcuts(GnomeTCCapplet* panel) {
  GtkAccelGroup* shortcuts = NewShortcuts(panel);
  GSList* objects = gtk_builder_get_objects(panel->builder);
  for (GSList* node = objects; node; node = node->next) {
    if (!GTK_IS_WINDOW(node->data)) continue;
    gtk_window_add_accel_group(GTK_WINDOW(node->data), shortcuts);
  }
  g_slist_free(objects);
  g_object_unref(shortcuts);
  gtk_binding_entry_add_signal(
      gtk_binding_set_by_class(g_type_class_peek(GTK_TYPE_DIALOG)), GDK_w,
      GDK_CONTROL_MASK, "close", 0);
}

void share_shortcuts(GtkWindow* from, GtkWindow* to) {
  if (!from) return;
  for (GSList* group = gtk_accel_groups_from_object(G_OBJECT(from)); group;
       group = group->next) {
    gtk_window_add_accel_group(to, GTK_ACCEL_GROUP(group->data));
  }
}
