// Finds widgets by their ids and sets their texts.
//
// A text is that of the table for a string id, or the fallback where the table
// has none. Without a fallback (null) the widget keeps the text of the UI
// definition.
#pragma once

#include "app/gnome_tcc_applet.h"
#include "model/permissions.h"

// The object with that id. Ends the program with a message naming the id when
// the UI definition has no such object of that type.
GObject* get_object(GtkBuilder* builder, const char* id, GType type);
GtkWidget* get_widget(GtkBuilder* builder, const char* id);
GtkListStore* get_list_store(GtkBuilder* builder, const char* id);
GtkTreeView* get_tree_view(GtkBuilder* builder, const char* id);
GtkTreeViewColumn* get_column(GtkBuilder* builder, const char* id);
// The column's only renderer.
GtkCellRenderer* get_renderer(GtkTreeViewColumn* column);

// Returns a constant text, or null.
const char* text_or(GnomeTCCapplet* panel, int string_id, const char* fallback);

void set_window_title(GnomeTCCapplet* panel, const char* window_id,
                      int string_id, const char* fallback);
void set_button_label(GnomeTCCapplet* panel, const char* button_id,
                      int string_id, const char* fallback);
// With a markup tag, sets the text as markup inside that tag; a bold text loses
// its final colon.
void set_label_text(GnomeTCCapplet* panel, const char* label_id, int string_id,
                    const char* fallback, const char* tag);
void set_column_title(GnomeTCCapplet* panel, const char* column_id,
                      int string_id, const char* fallback);
// Names a widget without a visible text for screen readers.
void set_accessible_name(GnomeTCCapplet* panel, const char* widget_id,
                         int string_id);
// Tells screen readers more about a widget than its name.
void set_accessible_description(GnomeTCCapplet* panel, const char* widget_id,
                                int string_id);
// Does nothing when there is no such text or row.
void set_list_store_text(GnomeTCCapplet* panel, const char* store_id,
                         int column, int row, int string_id);
// A copy of a text cell; empty for a cell without text.
SASM::SimpleString get_text_field(GtkTreeModel* model, GtkTreeIter* row,
                                  int column);
void set_link_URL(GnomeTCCapplet* panel, const char* link_button_id,
                  int string_id);
// Opens the page in the browser. Ignores failure: there is nowhere to report
// it.
void open_address(const char* address);
// Lets every link button open its page that way; the toolkit's own way warns.
void open_links_quietly();
void set_sensitive(GnomeTCCapplet* panel, const char* widget_id,
                   bool is_sensitive);
// Emits "toggled" when the state changes.
void set_toggle_active(GnomeTCCapplet* panel, const char* button_id,
                       bool is_active);
[[nodiscard]] bool is_toggle_active(GnomeTCCapplet* panel,
                                    const char* button_id);

// The word for a state; "Unknown" for any number that is no state.
const char* permission_state_text(GnomeTCCapplet* panel, PermissionState state);
// The stock id of a state's icon.
const char* permission_state_icon(PermissionState state);
