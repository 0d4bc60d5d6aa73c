// Runs the panel in the process of the test, in a home of its own.
#pragma once

#include <gmock/gmock.h>

#include "app/start_up.h"
#include "app/widget_helpers.h"
#include "tests/support/temporary_home.h"

// Each test needs a process of its own, as a process has one store. Any warning
// of the toolkit ends the test.
class PanelTest : public ::testing::Test {
 protected:
  void Start(const char* page_name = nullptr) {
    ASSERT_EQ(SettingBase::mSettingsManager, nullptr)
        << "a process can start one panel: run these tests through ctest";
    g_log_set_always_fatal(static_cast<GLogLevelFlags>(
        G_LOG_FATAL_MASK | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING));
    gtk_init(nullptr, nullptr);
    // The panel's objects live until the process ends.
    static GnomeTCCapplet* const panel = new_panel();
    panel_ = panel;
    ASSERT_TRUE(open_panel(panel_, page_name));
    Settle();
  }
  // Handles events until none is pending.
  static void Settle() {
    do {
      while (gtk_events_pending()) gtk_main_iteration();
      gdk_display_sync(gdk_display_get_default());
    } while (gtk_events_pending());
  }

  GtkWidget* Widget(const char* id) { return get_widget(panel_->builder, id); }
  void GoToPage(int page) {
    gtk_notebook_set_current_page(
        GTK_NOTEBOOK(Widget("tessary_corvane_notebook")), page);
  }
  void Click(const char* button) {
    ASSERT_TRUE(gtk_widget_get_sensitive(Widget(button))) << button;
    gtk_button_clicked(GTK_BUTTON(Widget(button)));
    Settle();
  }
  // The first of the rows gets the cursor.
  void Select(const char* tree_view, std::initializer_list<int> rows) {
    GtkTreeView* view = get_tree_view(panel_->builder, tree_view);
    GtkTreeSelection* selection = gtk_tree_view_get_selection(view);
    gtk_tree_selection_unselect_all(selection);
    for (const int row : rows) {
      GtkTreePath* path = gtk_tree_path_new_from_indices(row, -1);
      if (row == *rows.begin()) {
        gtk_tree_view_set_cursor(view, path, nullptr, FALSE);
      }
      gtk_tree_selection_select_path(selection, path);
      gtk_tree_path_free(path);
    }
  }

  TemporaryHome home_;
  GnomeTCCapplet* panel_ = nullptr;
};
