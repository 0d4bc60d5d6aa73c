// The permissions of sites: where each is kept, what it is called, and which
// state is in force. Reads dictionaries and touches no file.
#pragma once

#include <cstddef>
#include <iterator>

#include "settings/settings_dictionary.h"
#include "store/default_settings.h"
#include "store/setting_keys.h"

// The numbers are those of the permission choices in lists and combo boxes.
enum PermissionState : int {
  kPermissionStateNone = 0,
  kPermissionStateAlwaysDeny = 1,
  kPermissionStateAlwaysAsk = 2,
  kPermissionStateAlwaysAllow = 3,
};

// A limit of stored data is a number of kilobytes, or one of these.
inline constexpr double kLimitOfBlock = -1.0;
inline constexpr double kLimitOfAsk = 0.0;
inline constexpr double kUnlimited = -2.0;
// On the command line.
inline constexpr char kUnlimitedWord[] = "unlimited";

// A state that a user can choose.
struct PermissionChoice {
  PermissionState state;
  // On the command line and in JSON.
  const char* word;
  // Ids of texts: in a site's row, and as a choice in a combo box.
  int site_text_id;
  int choice_text_id;
  // Shown in a site's row when the table has no text.
  const char* fallback;
  // A stock id.
  const char* icon;
  // Stored when this state is chosen for storage.
  double limit_kb;
};

// In the order of the rows of the list store permission_settings.
inline constexpr PermissionChoice kPermissionChoices[] = {
    {.state = kPermissionStateAlwaysDeny,
     .word = "block",
     .site_text_id = 11100,
     .choice_text_id = 11100,
     .fallback = "Block",
     .icon = "icon_corvane_always_deny",
     .limit_kb = kLimitOfBlock},
    {.state = kPermissionStateAlwaysAsk,
     .word = "ask",
     .site_text_id = 11101,
     .choice_text_id = 11103,
     .fallback = "Ask",
     .icon = "icon_corvane_always_ask",
     .limit_kb = kLimitOfAsk},
    {.state = kPermissionStateAlwaysAllow,
     .word = "allow",
     .site_text_id = 11102,
     .choice_text_id = 11102,
     .fallback = "Allow",
     .icon = "icon_corvane_always_allow",
     .limit_kb = SASM::kDefaultLimitKb},
};

// Null for None and for a number that is no state.
[[nodiscard]] constexpr const PermissionChoice* FindChoice(
    PermissionState state) {
  for (const PermissionChoice& choice : kPermissionChoices) {
    if (choice.state == state) return &choice;
  }
  return nullptr;
}

// The same, but the choice of Block where there is none.
[[nodiscard]] constexpr const PermissionChoice& ChoiceOrBlock(
    PermissionState state) {
  const PermissionChoice* choice = FindChoice(state);
  return choice ? *choice : kPermissionChoices[0];
}

// Indexes of kPermissions.
enum PermissionKind : unsigned int { kStorage, kCamera, kNetwork };

struct Permission {
  PermissionKind kind;
  // On the command line and in JSON.
  const char* word;

  // Keys of a site's settings: either a limit in kB, or two booleans, of which
  // the first says whether the decision is fixed and the second what it is.
  const char* limit_key = nullptr;
  const char* always_key = nullptr;
  const char* allow_key = nullptr;

  // Key of the global settings: a limit as well, or a switch that blocks all
  // sites.
  const char* global_key;
  // True: a change of the global state changes nothing of the sites, and Block
  // overrides them. False: the new state is written to every listed site too.
  bool switch_overrides_sites = false;

  // The state offered for a new site; None stands for the global state.
  PermissionState new_site_state = kPermissionStateNone;

  // Ids of texts.
  int global_title_id;
  int site_title_id;
  int new_site_title_id;
  int new_site_label_id;
};

inline constexpr Permission kPermissions[] = {
    {.kind = kStorage,
     .word = "storage",
     .limit_key = SASM::kStorageLimit,
     .global_key = SASM::kDefaultStorageLimit,
     .global_title_id = 21001,
     .site_title_id = 61003,
     .new_site_title_id = 21107,
     .new_site_label_id = 21108},
    {.kind = kCamera,
     .word = "camera",
     .always_key = SASM::kCameraAlways,
     .allow_key = SASM::kCameraAllow,
     .global_key = SASM::kDefaultCameraAlways,
     .global_title_id = 31001,
     .site_title_id = 61001,
     .new_site_title_id = 31006,
     .new_site_label_id = 31007},
    {.kind = kNetwork,
     .word = "network",
     .always_key = SASM::kP2PAlways,
     .allow_key = SASM::kP2PAllow,
     .global_key = SASM::kDisallowP2PUplink,
     .switch_overrides_sites = true,
     .new_site_state = kPermissionStateAlwaysAllow,
     .global_title_id = 41001,
     .site_title_id = 61002,
     .new_site_title_id = 41200,
     .new_site_label_id = 41201},
};
inline constexpr std::size_t kPermissionCount = std::size(kPermissions);
static_assert([] {
  unsigned int index = 0;
  for (const Permission& permission : kPermissions) {
    if (permission.kind != index++) return false;
  }
  return true;
}());

// The state that two booleans of a site stand for.
[[nodiscard]] constexpr PermissionState StateOf(bool always, bool allow) {
  if (!always) return kPermissionStateAlwaysAsk;
  return allow ? kPermissionStateAlwaysAllow : kPermissionStateAlwaysDeny;
}

// The two booleans that are stored for a state: those of Block for None.
[[nodiscard]] constexpr bool AlwaysOf(PermissionState state) {
  return state != kPermissionStateAlwaysAsk;
}
[[nodiscard]] constexpr bool AllowOf(PermissionState state) {
  return state == kPermissionStateAlwaysAllow;
}

// The global switch that is stored for a state.
[[nodiscard]] constexpr bool SwitchOf(PermissionState state) {
  return state == kPermissionStateAlwaysDeny;
}

// The state that a limit stands for: Block for every other negative one.
[[nodiscard]] constexpr PermissionState StateOfLimit(double limit_kb) {
  if (limit_kb > 0 || limit_kb == kUnlimited) {
    return kPermissionStateAlwaysAllow;
  }
  return limit_kb < 0 ? kPermissionStateAlwaysDeny : kPermissionStateAlwaysAsk;
}

// The functions below take a null dictionary as an empty one. A setting that
// is missing or of another type counts as false, a limit as that of Block.

// The state stored for a site, whether or not it is in force.
[[nodiscard]] PermissionState StoredState(const Permission& permission,
                                          const SASM::SettingsDictionary* site);

// The state stored for all sites.
[[nodiscard]] PermissionState GlobalState(
    const Permission& permission, const SASM::SettingsDictionary* master);

// True when all sites are blocked, whatever they have stored.
[[nodiscard]] bool IsBlockedEverywhere(const Permission& permission,
                                       const SASM::SettingsDictionary* master);

// The state in force for a site. `site` is not read when the permission is
// blocked everywhere.
[[nodiscard]] PermissionState EffectiveState(
    const Permission& permission, const SASM::SettingsDictionary* master,
    const SASM::SettingsDictionary* site);

// The state offered for a new site.
[[nodiscard]] PermissionState NewSiteState(
    const Permission& permission, const SASM::SettingsDictionary* master);

// The limit stored for a site, and for all sites.
[[nodiscard]] double StoredLimitKb(const SASM::SettingsDictionary* site);
[[nodiscard]] double GlobalLimitKb(const SASM::SettingsDictionary* master);

// Put what stands for a state into a dictionary: that of a site, or that of
// the global settings, where a switch knows only Block; any other state counts
// as Ask there. The state is not None.
void PutSiteState(const Permission& permission, PermissionState state,
                  SASM::SettingsDictionary* site);
void PutGlobalState(const Permission& permission, PermissionState state,
                    SASM::SettingsDictionary* master);
// Puts a number under a key.
void PutNumber(const char* key, double number,
               SASM::SettingsDictionary* dictionary);
