// The sites that have a settings file, whether or not they are listed.
#pragma once

#include <string>
#include <vector>

#include "store/store_layout.h"

namespace SASM {

// Ascending by bytes. A directory that is reached over a link, below the base
// directory, is left out, as is a name that can be no site's.
[[nodiscard]] std::vector<std::string> SitesWithSettingsFile(
    const StoreLayout& layout);

}  // namespace SASM
