#include "model/permissions.h"

using SASM::SettingDataItem;
using SASM::SettingsDictionary;

namespace {

const SettingDataItem* Find(const char* key,
                            const SettingsDictionary* dictionary) {
  return dictionary ? SASM::FindSetting(key, *dictionary) : nullptr;
}

bool ReadBool(const char* key, const SettingsDictionary* dictionary) {
  return SASM::BoolOr(Find(key, dictionary), false);
}

double ReadLimitKb(const char* key, const SettingsDictionary* dictionary) {
  return SASM::NumberOr(Find(key, dictionary), kLimitOfBlock);
}

void PutBool(const char* key, bool boolean, SettingsDictionary* dictionary) {
  dictionary->insert(key, SettingDataItem(key, boolean));
}

}  // namespace

PermissionState StoredState(const Permission& permission,
                            const SettingsDictionary* site) {
  if (permission.limit_key) {
    return StateOfLimit(ReadLimitKb(permission.limit_key, site));
  }
  const bool always = ReadBool(permission.always_key, site);
  return StateOf(always, always && ReadBool(permission.allow_key, site));
}

PermissionState GlobalState(const Permission& permission,
                            const SettingsDictionary* master) {
  if (permission.limit_key) {
    return StateOfLimit(ReadLimitKb(permission.global_key, master));
  }
  return StateOf(ReadBool(permission.global_key, master), false);
}

bool IsBlockedEverywhere(const Permission& permission,
                         const SettingsDictionary* master) {
  return permission.switch_overrides_sites &&
         GlobalState(permission, master) == kPermissionStateAlwaysDeny;
}

PermissionState EffectiveState(const Permission& permission,
                               const SettingsDictionary* master,
                               const SettingsDictionary* site) {
  return IsBlockedEverywhere(permission, master)
             ? kPermissionStateAlwaysDeny
             : StoredState(permission, site);
}

PermissionState NewSiteState(const Permission& permission,
                             const SettingsDictionary* master) {
  return permission.new_site_state == kPermissionStateNone
             ? GlobalState(permission, master)
             : permission.new_site_state;
}

double StoredLimitKb(const SettingsDictionary* site) {
  return ReadLimitKb(kPermissions[kStorage].limit_key, site);
}

double GlobalLimitKb(const SettingsDictionary* master) {
  return ReadLimitKb(kPermissions[kStorage].global_key, master);
}

void PutNumber(const char* key, double number, SettingsDictionary* dictionary) {
  dictionary->insert(key, SettingDataItem(key, number));
}

void PutSiteState(const Permission& permission, PermissionState state,
                  SettingsDictionary* site) {
  if (permission.limit_key) {
    return PutNumber(permission.limit_key, ChoiceOrBlock(state).limit_kb, site);
  }
  PutBool(permission.always_key, AlwaysOf(state), site);
  PutBool(permission.allow_key, AllowOf(state), site);
}

void PutGlobalState(const Permission& permission, PermissionState state,
                    SettingsDictionary* master) {
  if (permission.limit_key) {
    return PutNumber(permission.global_key, ChoiceOrBlock(state).limit_kb,
                     master);
  }
  PutBool(permission.global_key, SwitchOf(state), master);
}
