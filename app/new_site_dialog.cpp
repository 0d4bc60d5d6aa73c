// The dialog that adds a site. The three site dialogs share it.
#include "app/dialogs.h"
#include "app/lists.h"
#include "app/notebook_pages.h"
#include "app/permission_choices.h"
#include "model/permission_changes.h"

using SASM::SimpleString;

namespace {

constexpr char kDialog[] = "new_site_dialog";
constexpr char kEntry[] = "new_site_entry";
constexpr char kPermission[] = "new_site_permission";
constexpr char kAddButton[] = "new_site_add_button";

GtkComboBox* get_combo_box(GnomeTCCapplet* panel, const char* combo_box_id) {
  return GTK_COMBO_BOX(
      get_object(panel->builder, combo_box_id, GTK_TYPE_COMBO_BOX));
}

void set_combo_permission_enum(GnomeTCCapplet* panel, const char* combo_box_id,
                               PermissionState state) {
  set_active_state(get_combo_box(panel, combo_box_id), state);
}

// None when no row is active.
PermissionState get_combo_permission_enum(GnomeTCCapplet* panel,
                                          const char* combo_box_id) {
  GtkComboBox* combo_box = get_combo_box(panel, combo_box_id);
  GtkTreeIter active;
  return gtk_combo_box_get_active_iter(combo_box, &active)
             ? get_choice_state(gtk_combo_box_get_model(combo_box), &active)
             : kPermissionStateNone;
}

void AskForSite(GnomeTCCapplet* panel, ListIndex index) {
  const List& list = kLists[index];
  const Permission& permission = *list.permission;
  set_sensitive(panel, kAddButton, false);
  set_combo_permission_enum(panel, kPermission,
                            NewSiteState(permission, master_settings(panel)));
  set_label_text(panel, "new_site_permission_label",
                 permission.new_site_label_id, nullptr, nullptr);
  set_accessible_name(panel, kPermission, permission.new_site_label_id);
  GtkWidget* entry = get_widget(panel->builder, kEntry);
  gtk_entry_set_text(GTK_ENTRY(entry), "");
  gtk_window_set_focus(GTK_WINDOW(get_widget(panel->builder, kDialog)), entry);
  show_dialog_over(panel, kDialog, list.dialog, permission.new_site_title_id);
  panel->new_site_mode = index;
}

}  // namespace

extern "C" {

G_MODULE_EXPORT void on_add_site_storage_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  AskForSite(panel, kStorageList);
}

G_MODULE_EXPORT void on_add_site_privacy_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  AskForSite(panel, kCameraList);
}

G_MODULE_EXPORT void on_add_site_p2p_setting_button_clicked(
    GtkButton*, GnomeTCCapplet* panel) {
  AskForSite(panel, kNetworkList);
}

G_MODULE_EXPORT void on_new_site_entry_changed(GtkEditable* entry,
                                               GnomeTCCapplet* panel) {
  const char* domain = gtk_entry_get_text(GTK_ENTRY(entry));
  set_sensitive(panel, kAddButton, *domain != '\0');
}

G_MODULE_EXPORT void on_new_site_add_button_clicked(GtkButton*,
                                                    GnomeTCCapplet* panel) {
  const auto index = static_cast<guint32>(panel->new_site_mode);
  if (index >= kSiteLists.size()) return;
  const SimpleString domain =
      gtk_entry_get_text(GTK_ENTRY(get_widget(panel->builder, kEntry)));
  // A site that could not be added does not appear in the refilled list.
  (void)panel->settings->AddDomainWithDefaultSettings(domain);
  // Data that could not be deleted is still in the list when it is refilled.
  (void)SetSiteState(*kSiteLists[index].permission, domain,
                     get_combo_permission_enum(panel, kPermission));
  update_notebook_page(panel, kCurrentPage);
}

}  // extern "C"
