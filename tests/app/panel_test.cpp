#include "tests/app/panel_test.h"

#include "app/start_up.h"
#include "app/widget_helpers.h"

void PanelTest::Start(const char* page_name) {
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

void PanelTest::GoToPage(int page) {
  gtk_notebook_set_current_page(
      GTK_NOTEBOOK(Widget("tessary_corvane_notebook")), page);
}

void PanelTest::Settle() {
  do {
    while (gtk_events_pending()) gtk_main_iteration();
    gdk_display_sync(gdk_display_get_default());
  } while (gtk_events_pending());
}

void PanelTest::Click(const char* button) {
  ASSERT_TRUE(gtk_widget_get_sensitive(Widget(button))) << button;
  gtk_button_clicked(GTK_BUTTON(Widget(button)));
  Settle();
}

void PanelTest::Select(const char* tree_view, std::initializer_list<int> rows) {
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

void PanelTest::ChooseInList(ListIndex index, PermissionState state) {
  const List& list = kLists[index];
  GtkTreeView* view = get_tree_view(panel_->builder, list.tree_view);
  GList* rows = gtk_tree_selection_get_selected_rows(
      gtk_tree_view_get_selection(view), nullptr);
  ASSERT_NE(rows, nullptr);
  char* path = gtk_tree_path_to_string(static_cast<GtkTreePath*>(rows->data));
  GtkTreeIter choice;
  ASSERT_TRUE(gtk_tree_model_iter_nth_child(
      GTK_TREE_MODEL(get_list_store(panel_->builder, "permission_settings")),
      &choice, nullptr, state - 1));
  g_signal_emit_by_name(
      get_renderer(get_column(panel_->builder, PermissionColumn(list).id)),
      "changed", path, &choice);
  g_free(path);
  g_list_free_full(rows, reinterpret_cast<GDestroyNotify>(gtk_tree_path_free));
  Settle();
}

PanelTest::Names PanelTest::Column(const char* list_store, int column) {
  Names texts;
  GtkTreeModel* model =
      GTK_TREE_MODEL(get_list_store(panel_->builder, list_store));
  GtkTreeIter row;
  for (gboolean more = gtk_tree_model_get_iter_first(model, &row); more;
       more = gtk_tree_model_iter_next(model, &row)) {
    texts.emplace_back(get_text_field(model, &row, column).c_str());
  }
  return texts;
}

GtkWidget* PanelTest::Widget(const char* id) {
  return get_widget(panel_->builder, id);
}
