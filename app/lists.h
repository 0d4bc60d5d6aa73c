// The lists and their columns, as the UI definition lays them out. The row of a
// list or a column holds every fact about it.
#pragma once

#include <iterator>
#include <span>

#include "model/permissions.h"
#include "strings/text_ids.h"

// What the cells of a column show, and what their rows are sorted by.
enum class Content {
  kSite,        // a domain name; by its components from the last to the first
  kLocation,    // a path; as the toolkit sorts texts
  kUsedSpace,   // the size of a site's local storage; by the low 32 bits of
                // the number of bytes, which the column holds
  kPermission,  // the state of the list's permission; by the number of the
                // state
};

constexpr int kNoColumn = -1;

struct Column {
  const char* id;
  Content content;
  // Text of the title.
  int title_id;
  const char* fallback;
  // Columns of the list store: the text shown in the cells, the value by which
  // the rows are sorted, and the stock id of an icon.
  int text_column;
  int sort_column;
  int icon_column = kNoColumn;
};

struct List {
  const char* dialog;
  // The button of a page that opens the dialog.
  const char* page_button;
  const char* tree_view;
  const char* store;
  const char* add_button;
  const char* remove_button;
  // Text of the title of the dialog, by which a screen reader also announces
  // the list; and the text that says what the list is for and what its Remove
  // button does.
  int title_id;
  int explanation_id;
  // Shown as the title when the table has no text.
  const char* fallback;
  // The first one shows the names, which are in kNameColumn.
  std::span<const Column> columns;
  // Null when the rows are not sites.
  const Permission* permission = nullptr;
};

constexpr int kNameColumn = 0;

inline constexpr Column kCameraColumns[] = {
    {.id = "site_privacy_site_column",
     .content = Content::kSite,
     .title_id = kSiteColumnTitleId,
     .fallback = "Site",
     .text_column = kNameColumn,
     .sort_column = kNameColumn},
    {.id = "site_privacy_cam_and_mic_column",
     .content = Content::kPermission,
     .title_id = kPermissions[kCamera].site_title_id,
     .fallback = "Camera and Mic Access",
     .text_column = 1,
     .sort_column = 2,
     .icon_column = 3},
};

inline constexpr Column kStorageColumns[] = {
    {.id = "site_storage_site_column",
     .content = Content::kSite,
     .title_id = kSiteColumnTitleId,
     .fallback = "Website",
     .text_column = kNameColumn,
     .sort_column = kNameColumn},
    {.id = "site_storage_used_column",
     .content = Content::kUsedSpace,
     .title_id = kUsedSpaceColumnTitleId,
     .fallback = "Used",
     .text_column = 1,
     .sort_column = 2},
    {.id = "site_storage_permission_column",
     .content = Content::kPermission,
     .title_id = kPermissions[kStorage].site_title_id,
     .fallback = "Storage Permission",
     .text_column = 3,
     .sort_column = 4,
     .icon_column = 5},
};

inline constexpr Column kNetworkColumns[] = {
    {.id = "site_p2p_site_column",
     .content = Content::kSite,
     .title_id = kSiteColumnTitleId,
     .fallback = "Website",
     .text_column = kNameColumn,
     .sort_column = kNameColumn},
    {.id = "site_p2p_permission_column",
     .content = Content::kPermission,
     .title_id = kPermissions[kNetwork].site_title_id,
     .fallback = "Permission",
     .text_column = 1,
     .sort_column = 2,
     .icon_column = 3},
};

inline constexpr Column kLocationColumns[] = {
    {.id = "trusted_location_column",
     .content = Content::kLocation,
     .title_id = kLocationColumnTitleId,
     .fallback = "Filesystem location",
     .text_column = kNameColumn,
     .sort_column = kNameColumn},
};

// Indexes of kLists.
enum ListIndex : int { kCameraList, kStorageList, kNetworkList, kLocationList };

// In the order in which their columns get titles.
inline constexpr List kLists[] = {
    {.dialog = "cam_and_mic_by_site_dialog",
     .page_button = "site_privacy_button",
     .tree_view = "site_privacy_treeview",
     .store = "site_privacy_list",
     .add_button = "add_site_privacy_setting_button",
     .remove_button = "remove_site_privacy_setting_button",
     .title_id = 61005,
     .explanation_id = 61006,
     .fallback = "Camera and Microphone Settings by Site",
     .columns = kCameraColumns,
     .permission = &kPermissions[kCamera]},
    {.dialog = "storage_by_site_dialog",
     .page_button = "site_storage_button",
     .tree_view = "site_storage_treeview",
     .store = "site_storage_list",
     .add_button = "add_site_storage_setting_button",
     .remove_button = "remove_site_storage_setting_button",
     .title_id = 61009,
     .explanation_id = 61010,
     .fallback = "Local Storage Settings by Site",
     .columns = kStorageColumns,
     .permission = &kPermissions[kStorage]},
    {.dialog = "p2p_by_site_dialog",
     .page_button = "site_p2p_button",
     .tree_view = "site_p2p_treeview",
     .store = "site_p2p_list",
     .add_button = "add_site_p2p_setting_button",
     .remove_button = "remove_site_p2p_setting_button",
     .title_id = 61007,
     .explanation_id = 61008,
     .fallback = "Peer-assisted Networking Settings by Site",
     .columns = kNetworkColumns,
     .permission = &kPermissions[kNetwork]},
    {.dialog = "compat_settings_dialog",
     .page_button = "compat_settings_button",
     .tree_view = "trusted_locations_treeview",
     .store = "trusted_locations",
     .add_button = "add_trusted_location_button",
     .remove_button = "remove_trusted_location_button",
     .title_id = 81000,
     .explanation_id = 81001,
     .fallback = "Compatibility Settings",
     .columns = kLocationColumns},
};

// The lists whose rows are sites, with the same indexes.
inline constexpr std::span<const List> kSiteLists =
    std::span(kLists).first<kLocationList>();

// Null when the list has no such column.
constexpr const Column* FindColumn(const List& list, Content content) {
  for (const Column& column : list.columns) {
    if (column.content == content) return &column;
  }
  return nullptr;
}

// For a list whose rows are sites.
constexpr const Column& PermissionColumn(const List& list) {
  return *FindColumn(list, Content::kPermission);
}
