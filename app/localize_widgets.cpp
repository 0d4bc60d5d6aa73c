#include "app/localize_widgets.h"

#include <string>

#include "app/lists.h"
#include "app/widget_helpers.h"

namespace {

enum class TextKind { kTitle, kBoldLabel, kLabel, kButton };

struct LocalizedWidget {
  const char* id;
  TextKind kind;
  int string_id;
  const char* fallback;
};

constexpr char kClearsSiteData[] =
    "Clears local storage, camera and microphone settings, and "
    "peer-assisted networking settings."
    "\n\n"
    "Clearing local storage may erase saved work, game progress, "
    "history, or preferences.";

// In the order in which they get their texts; those of lists come last.
constexpr LocalizedWidget kLocalizedWidgets[] = {
    {"tessary_corvane_dialog", TextKind::kTitle, kPanelTitleId,
     "Tessary Corvane Player Preferences"},
    {"label12", TextKind::kBoldLabel, kPermissions[kStorage].global_title_id,
     "Local Storage Settings"},
    {"storage_explanatory_label", TextKind::kLabel, 21002,
     "Web sites may try to save information on this computer, such as "
     "game progress, high scores, saved work, history, or preferences."},
    {"storage_allow_radiobutton", TextKind::kButton, 21004,
     "Allow sites to save information on this computer (recommended)"},
    {"storage_prompt_radiobutton", TextKind::kButton, 21005,
     "Prompt before allowing new sites to save information on this "
     "computer"},
    {"storage_block_radiobutton", TextKind::kButton, 21006,
     "Block all sites from saving information on this computer"},
    {"site_storage_button", TextKind::kButton, 21007,
     "Storage Settings by Site…"},
    {"clear_site_storage_button", TextKind::kButton, 11006, "Clear Site Data…"},
    {"private_browsing_label", TextKind::kLabel, 21301, nullptr},
    {"private_browsing_linkbutton", TextKind::kButton, 21302, nullptr},
    {"privacy_linkbutton", TextKind::kButton, 21106,
     "Learn more about privacy"},
    {"storage_label", TextKind::kLabel, 21000, "Storage"},
    {"label1", TextKind::kBoldLabel, kPermissions[kCamera].global_title_id,
     "Camera and Microphone Settings"},
    {"label6", TextKind::kLabel, 31002,
     "Ask when a site wants to use a camera or microphone (recommended)"},
    {"label21", TextKind::kLabel, 31003,
     "Block all sites from using a camera or microphone"},
    {"site_privacy_button", TextKind::kButton, 31004,
     "Camera and Mic Settings by Site…"},
    {"privacy_label", TextKind::kLabel, 31000, "Camera and Mic"},
    {"p2p_label3", TextKind::kBoldLabel, kPermissions[kNetwork].global_title_id,
     "Peer-assisted Networking"},
    {"p2p_label9", TextKind::kLabel, 41002,
     "Peer-assisted networking enables smoother media playback and "
     "features, such as chat, that connect to other computers.  It may "
     "use additional bandwidth."},
    {"p2p_label5", TextKind::kLabel, 41004,
     "Ask when a site wants to use peer-assisted networking "
     "(recommended)"},
    {"p2p_label4", TextKind::kLabel, 41005,
     "Block all sites from using peer-assisted networking"},
    {"site_p2p_button", TextKind::kButton, 41006,
     "Peer-assisted Networking Settings by Site…"},
    {"drm_label7", TextKind::kBoldLabel, 41100, "Protected Content"},
    {"label17", TextKind::kLabel, 41101,
     "License files allow this computer to play protected video and "
     "audio, such as purchased movies and music.  Reset license files "
     "to prevent this computer from playing that content."},
    {"reset_drm_button", TextKind::kButton, 41103, "Reset License Files…"},
    {"playback_label", TextKind::kLabel, 41000, "Playback"},
    {"label14", TextKind::kBoldLabel, 51100, "Browsing Data"},
    {"label3", TextKind::kLabel, 51101,
     "Clear local storage, saved choices, and other data used by "
     "content in Corvane Player across all browsers on this computer."},
    {"clear_site_data_button", TextKind::kButton, 11006, "Clear Site Data…"},
    {"updates_label4", TextKind::kBoldLabel, 51200, "Updates"},
    {"updates_label5", TextKind::kLabel, 51206,
     "Check for updates to help protect your computer and benefit from "
     "new enhancements to Corvane Player."},
    {"check_now_button", TextKind::kButton, 51205, "Check Now…"},
    {"label18", TextKind::kBoldLabel, 51400, "Developer Tools"},
    {"label19", TextKind::kLabel, 51401,
     "Configure trusted locations for compatibility with legacy content."},
    {"compat_settings_button", TextKind::kButton, 51402, "Trusted Locations…"},
    {"p2p_linkbutton", TextKind::kButton, 11011, "Learn more"},
    {"drm_linkbutton", TextKind::kButton, 11011, "Learn more"},
    {"advanced_label", TextKind::kLabel, 51000, "Advanced"},
    {"new_site_label1", TextKind::kLabel, 91000, "Web site domain:"},
    {"new_site_label2", TextKind::kLabel, 91001,
     "Example: www.tessary.example, tessary.example"},
    {"new_site_add_button", TextKind::kButton, 11004, "Add"},
    {"deny_all_storage_prompt_dialog", TextKind::kTitle, 21100,
     "Disable Local Storage"},
    {"deny_all_storage_label", TextKind::kLabel, 21101,
     "Blocking all sites from storing information may disable "
     "functionality on some web sites."
     "\n\n"
     "This will also clear local storage settings by site and clear "
     "data stored by previously visited sites, which may include saved "
     "work, game progress, login information, or preferences."},
    {"deny_all_storage_button2", TextKind::kButton, 21100,
     "Disable Local Storage"},
    {"clear_site_data_dialog", TextKind::kTitle, 71000,
     "Clear Site Data in Corvane Player"},
    {"clear_site_data_label3", TextKind::kLabel, 71001,
     "Clear the following items in all browsers:"},
    {"clear_site_data_checkbutton", TextKind::kButton, 71002,
     "Delete local storage and all site settings"},
    {"clear_drm_checkbutton", TextKind::kButton, 71007,
     "Delete license files needed to play previously purchased/rented "
     "audio or video"},
    {"clear_site_data_label1", TextKind::kLabel, 71003, kClearsSiteData},
    {"clear_site_data_label2", TextKind::kLabel, 71008, kClearsSiteData},
    {"clear_site_data_label5", TextKind::kLabel, 71009,
     "To clear all browsing history, also clear history data in your "
     "browser."},
    {"clear_site_data_button1", TextKind::kButton, 11007, "Clear Data"},
    {"reset_drm_prompt_dialog", TextKind::kTitle, 41104, "Reset License Files"},
    {"reset_drm_ok_button", TextKind::kButton, 11008, "Reset"},
    {"compat_label1", TextKind::kLabel, 81001,
     "If you have problems using trusted content designed for Corvane "
     "Player 7 or earlier, add its location to use it with compatible "
     "security settings."},
    {"compat_linkbutton", TextKind::kButton, 11011, "Learn more"},
    {"add_trusted_location_button", TextKind::kButton, 11013, "Add Folder…"},
    {"add_trusted_file_button", TextKind::kButton, 11012, "Add File…"},
    {"trusted_location_edit_dialog", TextKind::kTitle, 84000,
     "Edit Compatibility Location"},
    {"trusted_location_label1", TextKind::kLabel, 84001,
     "Trust this location and allow it to use Corvane Player 7 "
     "compatible security settings:"},
};

// Widgets whose texts are those of others, and what tells them apart.
constexpr struct {
  const char* id;
  int string_id;
} kDescribedWidgets[] = {
    {"p2p_linkbutton", 41003},         {"drm_linkbutton", 41102},
    {"compat_linkbutton", 81002},      {"clear_site_storage_button", 71002},
    {"clear_site_data_button", 51101},
};

// The radio buttons in a box, and the heading that says what they choose.
constexpr struct {
  const char* box;
  const char* heading;
} kRadioGroups[] = {
    {"vbox7", "label12"},
    {"privacy_settings_vbox", "label1"},
    {"p2p_settings_vbox1", "p2p_label3"},
};

void Localize(GnomeTCCapplet* panel, const LocalizedWidget& row) {
  switch (row.kind) {
    case TextKind::kTitle:
      return set_window_title(panel, row.id, row.string_id, row.fallback);
    case TextKind::kBoldLabel:
      return set_label_text(panel, row.id, row.string_id, row.fallback, "b");
    case TextKind::kLabel:
      return set_label_text(panel, row.id, row.string_id, row.fallback,
                            nullptr);
    case TextKind::kButton:
      return set_button_label(panel, row.id, row.string_id, row.fallback);
  }
}

// To the eye and to the ear.
void Explain(GnomeTCCapplet* panel, const char* widget, int string_id) {
  set_accessible_description(panel, widget, string_id);
  gtk_widget_set_tooltip_text(get_widget(panel->builder, widget),
                              text_or(panel, string_id, nullptr));
}

void LocalizeLists(GnomeTCCapplet* panel) {
  for (const List& list : kSiteLists) {
    set_button_label(panel, list.add_button, 11005, "Add…");
  }
  for (const List& list : kLists) {
    set_window_title(panel, list.dialog, list.title_id, list.fallback);
    set_button_label(panel, list.remove_button, 11009, "Remove");
    for (const Column& column : list.columns) {
      set_column_title(panel, column.id, column.title_id, column.fallback);
    }
    set_accessible_name(panel, list.tree_view, list.title_id);
    Explain(panel, list.tree_view, list.explanation_id);
    Explain(panel, list.remove_button, list.explanation_id);
  }
}

void LabelRadioGroups(GnomeTCCapplet* panel) {
  for (const auto& group : kRadioGroups) {
    GtkWidget* heading = get_widget(panel->builder, group.heading);
    AtkObject* label = gtk_widget_get_accessible(heading);
    AtkObject* box =
        gtk_widget_get_accessible(get_widget(panel->builder, group.box));
    atk_object_set_role(box, ATK_ROLE_PANEL);
    atk_object_set_name(box, gtk_label_get_text(GTK_LABEL(heading)));
    atk_object_add_relationship(box, ATK_RELATION_LABELLED_BY, label);
    atk_object_add_relationship(label, ATK_RELATION_LABEL_FOR, box);
  }
}

// A screen reader announces an entry by the text of its label.
void NameEntries(GnomeTCCapplet* panel) {
  set_accessible_name(panel, "new_site_entry", 91000);
  set_accessible_name(panel, "trusted_location_entry", 84001);
}

void LocalizePermissionChoices(GnomeTCCapplet* panel) {
  int row = 0;
  for (const PermissionChoice& choice : kPermissionChoices) {
    set_list_store_text(panel, "permission_settings", 0, row++,
                        choice.choice_text_id);
  }
}

void LocalizeLicenceReset(GnomeTCCapplet* panel) {
  const std::string text = std::string(text_or(panel, 41105, "")) + "\n\n" +
                           text_or(panel, 41106, "");
  GObject* label =
      get_object(panel->builder, "reset_drm__label", GTK_TYPE_LABEL);
  g_object_set(label, "label", text.c_str(), nullptr);
}

}  // namespace

void localize_widgets(GnomeTCCapplet* panel) {
  for (const LocalizedWidget& row : kLocalizedWidgets) Localize(panel, row);
  LocalizeLists(panel);
  LocalizePermissionChoices(panel);
  LocalizeLicenceReset(panel);
  NameEntries(panel);
  for (const auto& row : kDescribedWidgets) {
    set_accessible_description(panel, row.id, row.string_id);
  }
  LabelRadioGroups(panel);
}
