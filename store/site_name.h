// The names under which settings are kept.
#pragma once

#include "settings/simple_string.h"

namespace SASM {

// "___MASTER_DOMAIN", the reserved name under which the global settings are
// kept. Lives to the end of the process.
[[nodiscard]] const SimpleString& MasterDomainName();

// True for a name that can be a site's: not empty, not the reserved one, and
// without a component between slashes that is empty, "." or "..". Such a name
// has files of its own, below the directories of the store and nowhere else.
[[nodiscard]] bool IsSiteName(const SimpleString& name);

}  // namespace SASM
