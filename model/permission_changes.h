// Changes of permissions. All are on disk when the call returns.
//
// Block of storage deletes the stored data of the sites that it reaches. The
// results are false only when that failed; the states are stored all the same.
#pragma once

#include "model/permissions.h"

[[nodiscard]] bool SetSiteState(const Permission& permission,
                                const SASM::SimpleString& site,
                                PermissionState state);

// Goes on after a failure.
[[nodiscard]] bool SetStateOfListedSites(const Permission& permission,
                                         PermissionState state);

// Sets the global state, and writes it to every listed site too unless
// Permission::switch_overrides_sites. A switch knows only Block; any other
// state counts as Ask.
[[nodiscard]] bool SetGlobalState(const Permission& permission,
                                  PermissionState state);
