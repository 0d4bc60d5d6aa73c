#include "tests/app/panel_test.h"

#include "app/start_up.h"
#include "app/widget_helpers.h"

// Of the leak sanitizer, in builds that have it.
extern "C" {
void __lsan_disable() __attribute__((weak));
void __lsan_enable() __attribute__((weak));
}

namespace {

// One step in the idle time of a modal dialog's own loop.
struct ModalStep {
  std::function<bool()> take;  // false to be called again
  bool taken = false;
};

gboolean TakeStep(gpointer data) {
  auto* step = static_cast<ModalStep*>(data);
  step->taken = step->take();
  return step->taken ? G_SOURCE_REMOVE : G_SOURCE_CONTINUE;
}

void RunWithStep(const std::function<void()>& action,
                 std::function<bool()> take) {
  ModalStep step = {std::move(take)};
  const guint source = g_idle_add(TakeStep, &step);
  action();
  EXPECT_TRUE(step.taken) << "no dialog asked";
  if (!step.taken) g_source_remove(source);
}

std::vector<GtkWidget*> VisibleWindows(GType type) {
  std::vector<GtkWidget*> windows;
  GList* all = gtk_window_list_toplevels();
  for (GList* node = all; node; node = node->next) {
    auto* window = GTK_WIDGET(node->data);
    if (G_TYPE_CHECK_INSTANCE_TYPE(window, type) &&
        gtk_widget_get_mapped(window))
      windows.push_back(window);
  }
  g_list_free(all);
  return windows;
}

// The toolkit's file chooser leaks, from its first moment to its last.
void CheckLeaks(bool check) {
  if (!__lsan_disable) return;
  (check ? __lsan_enable : __lsan_disable)();
}

// Chooses a file, or nothing for "". False as long as there is no chooser, or
// it has not read the directory.
bool AnswerChooser(const std::string& path, bool* is_set) {
  const auto choosers = VisibleWindows(GTK_TYPE_FILE_CHOOSER_DIALOG);
  if (choosers.empty()) return false;
  GtkFileChooser* chooser = GTK_FILE_CHOOSER(choosers.front());
  if (!path.empty()) {
    if (!*is_set) {
      *is_set = gtk_file_chooser_set_filename(chooser, path.c_str());
    }
    char* chosen = gtk_file_chooser_get_filename(chooser);
    const bool is_chosen = chosen && path == chosen;
    g_free(chosen);
    if (!is_chosen) return false;
  }
  gtk_dialog_response(GTK_DIALOG(chooser),
                      path.empty() ? GTK_RESPONSE_CANCEL : GTK_RESPONSE_ACCEPT);
  return true;
}

}  // namespace

GnomeTCCapplet* NewPanelForProcess() {
  static GnomeTCCapplet* panel = new_panel();
  return panel;
}

void PanelTest::Start(const char* page_name) {
  ASSERT_EQ(SettingBase::mSettingsManager, nullptr)
      << "a process can start one panel: run these tests through ctest";
  g_log_set_always_fatal(static_cast<GLogLevelFlags>(
      G_LOG_FATAL_MASK | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING));
  gtk_init(nullptr, nullptr);
  panel_ = NewPanelForProcess();
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
  ASSERT_TRUE(IsSensitive(button)) << button;
  gtk_button_clicked(GTK_BUTTON(Widget(button)));
  Settle();
}

void PanelTest::Choose(const char* toggle_button) {
  gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(Widget(toggle_button)), TRUE);
  Settle();
}

void PanelTest::Type(const char* entry, const std::string& text) {
  gtk_entry_set_text(GTK_ENTRY(Widget(entry)), text.c_str());
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

void PanelTest::ChooseInList(SitePermissionMode mode, PermissionState state) {
  constexpr const char* kRenderers[] = {
      "site_privacy_permission_settings_combo",
      "cellrenderer_storage_permission_settings_combo",
      "cellrenderer_p2p_permission_settings_combo"};
  GtkTreeView* view =
      get_tree_view(panel_->builder, kSitePermissions[mode].tree_view);
  GList* rows = gtk_tree_selection_get_selected_rows(
      gtk_tree_view_get_selection(view), nullptr);
  ASSERT_NE(rows, nullptr);
  char* path = gtk_tree_path_to_string(static_cast<GtkTreePath*>(rows->data));
  GtkTreeIter choice;
  ASSERT_TRUE(gtk_tree_model_iter_nth_child(
      GTK_TREE_MODEL(get_list_store(panel_->builder, "permission_settings")),
      &choice, nullptr, state - 1));
  g_signal_emit_by_name(
      get_object(panel_->builder, kRenderers[mode], GTK_TYPE_CELL_RENDERER),
      "changed", path, &choice);
  g_free(path);
  g_list_free_full(rows, reinterpret_cast<GDestroyNotify>(gtk_tree_path_free));
  Settle();
}

void PanelTest::Answer(const char* dialog, int response, const Steps& action,
                       const Steps& steps) {
  GtkWidget* window = Widget(dialog);
  RunWithStep(action, [&] {
    if (!gtk_widget_get_mapped(window)) return false;
    if (steps) steps();
    gtk_dialog_response(GTK_DIALOG(window), response);
    return true;
  });
  EXPECT_FALSE(gtk_widget_get_visible(window));
}

void PanelTest::AnswerFileChooser(const std::string& path,
                                  const Steps& action) {
  bool is_set = false;
  CheckLeaks(false);
  RunWithStep(action, [&] { return AnswerChooser(path, &is_set); });
  CheckLeaks(true);
}

bool PanelTest::IsSensitive(const char* widget) {
  return gtk_widget_get_sensitive(Widget(widget));
}

bool PanelTest::IsActive(const char* toggle_button) {
  return is_toggle_active(panel_, toggle_button);
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

PanelTest::Names PanelTest::Errors() {
  Names texts;
  for (GtkWidget* dialog : VisibleWindows(GTK_TYPE_MESSAGE_DIALOG)) {
    char* message = nullptr;
    g_object_get(dialog, "text", &message, nullptr);
    const char* title = gtk_window_get_title(GTK_WINDOW(dialog));
    texts.push_back(std::string(title ? title : "") + ": " + message);
    g_free(message);
  }
  return texts;
}

GtkWidget* PanelTest::Widget(const char* id) {
  return get_widget(panel_->builder, id);
}
