#include "app/removal_question.h"

#include <string>

#include "app/list_selection.h"
#include "app/widget_helpers.h"
#include "strings/printable_text.h"

namespace {

constexpr int kMostNames = 5;
constexpr std::size_t kLongestName = 60;  // characters

// The selected names, a line each, as far as there is room.
struct SelectedNames {
  std::string text;
  int count = 0;
};

void AddName(GtkTreeModel* model, GtkTreePath*, GtkTreeIter* row,
             gpointer data) {
  auto* names = static_cast<SelectedNames*>(data);
  if (++names->count > kMostNames + 1) return;
  if (names->count > 1) names->text += '\n';
  names->text +=
      names->count > kMostNames
          ? "…"
          : PrintableExcerpt(get_text_field(model, row, kNameColumn).c_str(),
                             kLongestName);
}

// What a removal does, and to which sites.
std::string Question(GnomeTCCapplet* panel, const List& list) {
  SelectedNames names;
  for_each_selected(panel, list.tree_view, AddName, &names);
  return std::string(text_or(panel, list.explanation_id, "")) + "\n\n" +
         names.text;
}

GtkWidget* NewQuestion(GnomeTCCapplet* panel, const List& list) {
  GtkWidget* dialog = gtk_message_dialog_new(
      GTK_WINDOW(get_widget(panel->builder, list.dialog)), GTK_DIALOG_MODAL,
      GTK_MESSAGE_WARNING, GTK_BUTTONS_NONE, "%s",
      Question(panel, list).c_str());
  const char* title = text_or(panel, 11200, "Confirmation Needed");
  gtk_window_set_title(GTK_WINDOW(dialog), title);
  // By itself, "Warning".
  atk_object_set_name(gtk_widget_get_accessible(dialog), title);
  gtk_dialog_add_buttons(GTK_DIALOG(dialog), text_or(panel, 11001, "Cancel"),
                         GTK_RESPONSE_CANCEL, text_or(panel, 11009, "Remove"),
                         GTK_RESPONSE_OK, nullptr);
  gtk_dialog_set_default_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
  return dialog;
}

}  // namespace

bool confirm_removal(GnomeTCCapplet* panel, const List& list) {
  GtkWidget* dialog = NewQuestion(panel, list);
  const int response = gtk_dialog_run(GTK_DIALOG(dialog));
  gtk_widget_destroy(dialog);
  return response == GTK_RESPONSE_OK;
}
