// The sites that have a directory for settings, whether or not they are listed.
#pragma once

#include <string>
#include <vector>

#include "store/store_layout.h"

namespace SASM {

// Ascending by bytes. Some may have no settings file. A directory that is
// reached over a link, below the base directory, is left out, as is a name that
// can be no site's.
[[nodiscard]] std::vector<std::string> SitesWithDirectory(
    const StoreLayout& layout);

}  // namespace SASM
