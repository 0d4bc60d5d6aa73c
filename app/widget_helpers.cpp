#include "app/widget_helpers.h"

#include <string>
#include <string_view>

GObject* get_object(GtkBuilder* builder, const char* id, GType type) {
  GObject* object = gtk_builder_get_object(builder, id);
  if (!object || !g_type_is_a(G_OBJECT_TYPE(object), type)) {
    g_error("The UI definition has no %s \"%s\".", g_type_name(type), id);
  }
  return object;
}

GtkWidget* get_widget(GtkBuilder* builder, const char* id) {
  return GTK_WIDGET(get_object(builder, id, GTK_TYPE_WIDGET));
}

GtkListStore* get_list_store(GtkBuilder* builder, const char* id) {
  return GTK_LIST_STORE(get_object(builder, id, GTK_TYPE_LIST_STORE));
}

GtkTreeView* get_tree_view(GtkBuilder* builder, const char* id) {
  return GTK_TREE_VIEW(get_object(builder, id, GTK_TYPE_TREE_VIEW));
}

GtkTreeViewColumn* get_column(GtkBuilder* builder, const char* id) {
  return GTK_TREE_VIEW_COLUMN(
      get_object(builder, id, GTK_TYPE_TREE_VIEW_COLUMN));
}

GtkCellRenderer* get_renderer(GtkTreeViewColumn* column) {
  GList* renderers = gtk_cell_layout_get_cells(GTK_CELL_LAYOUT(column));
  auto* renderer = GTK_CELL_RENDERER(renderers->data);
  g_list_free(renderers);
  return renderer;
}

const char* text_or(GnomeTCCapplet* panel, int string_id,
                    const char* fallback) {
  const char* text = panel->strings->GetString(string_id);
  return text ? text : fallback;
}

void set_window_title(GnomeTCCapplet* panel, const char* window_id,
                      int string_id, const char* fallback) {
  const char* text = text_or(panel, string_id, fallback);
  GObject* window = get_object(panel->builder, window_id, GTK_TYPE_WINDOW);
  if (text) gtk_window_set_title(GTK_WINDOW(window), text);
}

void set_button_label(GnomeTCCapplet* panel, const char* button_id,
                      int string_id, const char* fallback) {
  const char* text = text_or(panel, string_id, fallback);
  GObject* button = get_object(panel->builder, button_id, GTK_TYPE_BUTTON);
  if (text) gtk_button_set_label(GTK_BUTTON(button), text);
}

void set_label_text(GnomeTCCapplet* panel, const char* label_id, int string_id,
                    const char* fallback, const char* tag) {
  const char* text = text_or(panel, string_id, fallback);
  GtkLabel* label =
      GTK_LABEL(get_object(panel->builder, label_id, GTK_TYPE_LABEL));
  if (!text) return;
  if (!tag) {
    g_object_set(label, "label", text, nullptr);
    return;
  }
  std::string_view content = text;
  const bool is_heading = *tag == 'b';
  if (is_heading && content.ends_with(':')) content.remove_suffix(1);
  const std::string name = tag;
  const std::string markup =
      "<" + name + ">" + std::string(content) + "</" + name + ">";
  gtk_label_set_markup(label, markup.c_str());
}

void set_column_title(GnomeTCCapplet* panel, const char* column_id,
                      int string_id, const char* fallback) {
  const char* text = text_or(panel, string_id, fallback);
  GtkTreeViewColumn* column = get_column(panel->builder, column_id);
  if (text) gtk_tree_view_column_set_title(column, text);
}

void set_accessible_name(GnomeTCCapplet* panel, const char* widget_id,
                         int string_id) {
  const char* text = text_or(panel, string_id, nullptr);
  AtkObject* accessible =
      gtk_widget_get_accessible(get_widget(panel->builder, widget_id));
  if (text) atk_object_set_name(accessible, text);
}

void set_accessible_description(GnomeTCCapplet* panel, const char* widget_id,
                                int string_id) {
  const char* text = text_or(panel, string_id, nullptr);
  AtkObject* accessible =
      gtk_widget_get_accessible(get_widget(panel->builder, widget_id));
  if (text) atk_object_set_description(accessible, text);
}

void set_list_store_text(GnomeTCCapplet* panel, const char* store_id,
                         int column, int row, int string_id) {
  GtkListStore* store = get_list_store(panel->builder, store_id);
  const char* text = text_or(panel, string_id, nullptr);
  GtkTreeIter iter;
  if (text && gtk_tree_model_iter_nth_child(GTK_TREE_MODEL(store), &iter,
                                            nullptr, row)) {
    gtk_list_store_set(store, &iter, column, text, -1);
  }
}

SASM::SimpleString get_text_field(GtkTreeModel* model, GtkTreeIter* row,
                                  int column) {
  char* text = nullptr;
  gtk_tree_model_get(model, row, column, &text, -1);
  SASM::SimpleString copy = text;
  g_free(text);
  return copy;
}

void set_link_URL(GnomeTCCapplet* panel, const char* link_button_id,
                  int string_id) {
  GObject* button =
      get_object(panel->builder, link_button_id, GTK_TYPE_LINK_BUTTON);
  const char* address = text_or(panel, string_id, nullptr);
  if (address) gtk_link_button_set_uri(GTK_LINK_BUTTON(button), address);
}

void open_address(const char* address) {
  (void)gtk_show_uri(gdk_screen_get_default(), address,
                     gtk_get_current_event_time(), nullptr);
}

void open_links_quietly() {
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  gtk_link_button_set_uri_hook([](GtkLinkButton*, const char* address,
                                  gpointer) { open_address(address); },
                               nullptr, nullptr);
  G_GNUC_END_IGNORE_DEPRECATIONS
}

void set_sensitive(GnomeTCCapplet* panel, const char* widget_id,
                   bool is_sensitive) {
  gtk_widget_set_sensitive(get_widget(panel->builder, widget_id), is_sensitive);
}

void set_toggle_active(GnomeTCCapplet* panel, const char* button_id,
                       bool is_active) {
  GObject* button =
      get_object(panel->builder, button_id, GTK_TYPE_TOGGLE_BUTTON);
  gtk_toggle_button_set_active(GTK_TOGGLE_BUTTON(button), is_active);
}

bool is_toggle_active(GnomeTCCapplet* panel, const char* button_id) {
  GObject* button =
      get_object(panel->builder, button_id, GTK_TYPE_TOGGLE_BUTTON);
  return gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(button));
}

const char* permission_state_text(GnomeTCCapplet* panel,
                                  PermissionState state) {
  const PermissionChoice* choice = FindChoice(state);
  if (!choice) return "Unknown";
  return text_or(panel, choice->site_text_id, choice->fallback);
}

const char* permission_state_icon(PermissionState state) {
  const PermissionChoice* choice = FindChoice(state);
  return choice ? choice->icon : "icon_corvane_unknown";
}
