#include "app/trusted_locations.h"

#include <cerrno>
#include <cstdlib>
#include <string>

#include "app/list_selection.h"
#include "app/lists.h"
#include "app/location_chooser.h"
#include "app/notebook_pages.h"
#include "app/selection_editing.h"
#include "app/widget_helpers.h"
#include "settings/setting_data_item.h"

using SASM::SDIVector;
using SASM::SettingDataItem;

namespace {

constexpr const List& kList = kLists[kLocationList];

SettingDataItem MakeLocation(const char* path) {
  const bool trusted = true;
  return {path, SASM::kSettingsDataTypeBool, &trusted};
}

// Stores the whole list after it was changed in place.
void StoreLocations(GnomeTCCapplet* panel, SDIVector* locations) {
  panel->trusted_paths->setVectorValue(locations);
  update_notebook_page(panel, kCurrentPage);
}

void AddLocation(GnomeTCCapplet* panel, const char* path) {
  SDIVector* locations = panel->trusted_paths->getVectorValue();
  if (!locations) return;
  const SettingDataItem location = MakeLocation(path);
  locations->addElement(&location);
  panel->trusted_paths->setVectorValue(locations);
}

void ChooseLocation(GnomeTCCapplet* panel, GtkFileChooserAction action,
                    int title_id, const char* title_fallback) {
  GtkWidget* parent = get_widget(panel->builder, kList.dialog);
  char* path = choose_location(GTK_WINDOW(parent), action,
                               text_or(panel, title_id, title_fallback));
  if (path) AddLocation(panel, path);
  g_free(path);
  update_notebook_page(panel, kCurrentPage);
}

// The location in UTF-8, as an entry needs it: U+FFFD replaces other bytes.
std::string EditableText(const SASM::SimpleString& location) {
  char* valid = g_utf8_make_valid(location.c_str(), -1);
  std::string text = valid;
  g_free(valid);
  return text;
}

// Before the focus leaves the entry, which drops its text.
void KeepTextOnClose(GtkCellEditable* entry, GtkWidget* next_focus,
                     GtkDialog* dialog) {
  if (next_focus && gtk_dialog_get_response_for_widget(dialog, next_focus) ==
                        GTK_RESPONSE_CLOSE) {
    end_editing(entry);
  }
}

// Likewise when the focus goes to another window, but for the entry's own menu.
gboolean KeepTextOnLeave(GtkCellEditable* entry, GdkEventFocus*,
                         GtkWindow* dialog) {
  GtkWidget* menu = GTK_ENTRY(entry)->popup_menu;
  const bool has_menu = menu && gtk_widget_get_visible(menu);
  if (!gtk_window_has_toplevel_focus(dialog) && !has_menu) end_editing(entry);
  return FALSE;
}

// Replaces the text of the row, which may be an excerpt or escaped.
void EditWholeLocation(GtkCellRenderer*, GtkCellEditable* entry,
                       const char* path, GnomeTCCapplet* panel) {
  auto* model = GTK_TREE_MODEL(get_list_store(panel->builder, kList.store));
  GtkTreeIter row;
  if (!gtk_tree_model_get_iter_from_string(model, &row, path)) return;
  const SASM::SimpleString location = get_text_field(model, &row, kNameColumn);
  gtk_entry_set_text(GTK_ENTRY(entry), EditableText(location).c_str());
  gtk_editable_select_region(GTK_EDITABLE(entry), 0, -1);
  GtkWidget* dialog = get_widget(panel->builder, kList.dialog);
  g_signal_connect_object(dialog, "set-focus", G_CALLBACK(KeepTextOnClose),
                          entry, G_CONNECT_SWAPPED);
  g_signal_connect_object(dialog, "hide", G_CALLBACK(end_editing), entry,
                          G_CONNECT_SWAPPED);
  g_signal_connect(entry, "focus-out-event", G_CALLBACK(KeepTextOnLeave),
                   dialog);
}

bool IsCollected(const GnomeTCCapplet* panel, guint32 index) {
  const SelectedRow* row = panel->selected_rows;
  while (row && row->index != index) row = row->next;
  return row != nullptr;
}

// The index in the stored list of the entry that a row shows. Where the user
// has sorted the rows, finds an entry with the same text that is not yet
// collected.
guint32 ListIndexOf(const GnomeTCCapplet* panel, const SDIVector& locations,
                    guint32 row_index, const SASM::SimpleString& text) {
  if (row_index < locations.count && locations.At(row_index)->name == text &&
      !IsCollected(panel, row_index)) {
    return row_index;
  }
  for (guint32 i = 0; i < locations.count; ++i) {
    if (locations.At(i)->name == text && !IsCollected(panel, i)) return i;
  }
  return locations.count;
}

// Keeps selected_rows in descending order: each removal then leaves the
// remaining indices valid.
void Collect(GnomeTCCapplet* panel, guint32 index) {
  SelectedRow** place = &panel->selected_rows;
  while (*place && (*place)->index > index) place = &(*place)->next;
  *place = new SelectedRow{index, *place};
}

// An index beyond any list when there is no such row.
guint32 ListIndexOf(GnomeTCCapplet* panel, GtkTreeModel* model,
                    unsigned long row_index) {
  GtkTreeIter row;
  const SDIVector* locations = panel->trusted_paths->getVectorValue();
  if (!locations || row_index > G_MAXINT32 ||
      !gtk_tree_model_iter_nth_child(model, &row, nullptr,
                                     static_cast<int>(row_index))) {
    return G_MAXUINT32;
  }
  return ListIndexOf(panel, *locations, static_cast<guint32>(row_index),
                     get_text_field(model, &row, kNameColumn));
}

void collect_selected_row(GtkTreeModel* model, GtkTreePath* path, GtkTreeIter*,
                          gpointer data) {
  auto* panel = static_cast<GnomeTCCapplet*>(data);
  const int row_index = gtk_tree_path_get_indices(path)[0];
  Collect(panel,
          ListIndexOf(panel, model, static_cast<unsigned long>(row_index)));
}

void RemoveCollectedRows(GnomeTCCapplet* panel, SDIVector* locations) {
  while (SelectedRow* row = panel->selected_rows) {
    if (locations) locations->removeElementAtIndex(row->index);
    panel->selected_rows = row->next;
    delete row;
  }
}

}  // namespace

void prepare_location_editing(GnomeTCCapplet* panel) {
  g_signal_connect(get_object(panel->builder, "trusted_location",
                              GTK_TYPE_CELL_RENDERER_TEXT),
                   "editing-started", G_CALLBACK(EditWholeLocation), panel);
}

extern "C" {

G_MODULE_EXPORT void on_trusted_locations_treeview_cursor_changed(
    GtkTreeView*, GnomeTCCapplet* panel) {
  if (!panel->updating) set_sensitive(panel, kList.remove_button, true);
}

G_MODULE_EXPORT void on_add_trusted_location_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  ChooseLocation(panel, GTK_FILE_CHOOSER_ACTION_SELECT_FOLDER, 83000,
                 "Choose the trusted directory");
}

G_MODULE_EXPORT void on_add_trusted_file_button_clicked(GtkButton*,
                                                        GnomeTCCapplet* panel) {
  ChooseLocation(panel, GTK_FILE_CHOOSER_ACTION_OPEN, 83001,
                 "Choose the trusted file");
}

G_MODULE_EXPORT void on_trusted_location_edited(GtkCellRendererText*,
                                                const char* path,
                                                const char* text,
                                                GnomeTCCapplet* panel) {
  SDIVector* locations = panel->trusted_paths->getVectorValue();
  if (*text == '\0' || !locations) return;
  errno = 0;
  const unsigned long row_index = std::strtoul(path, nullptr, 10);
  if (errno != 0) return;
  GtkListStore* store = get_list_store(panel->builder, kList.store);
  const guint32 index = ListIndexOf(panel, GTK_TREE_MODEL(store), row_index);
  if (index < locations->count) {
    // Unchanged: storing U+FFFD would lose the original bytes.
    if (EditableText(locations->At(index)->name) == text) return;
    locations->ReplaceElementAtIndex(index, MakeLocation(text));
  }
  StoreLocations(panel, locations);
}

G_MODULE_EXPORT void on_remove_trusted_location_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  SDIVector* locations = panel->trusted_paths->getVectorValue();
  for_each_selected(panel, kList.tree_view, collect_selected_row, panel);
  RemoveCollectedRows(panel, locations);
  StoreLocations(panel, locations);
}

}  // extern "C"
