// What is on disk for a site, found without changing anything.
#pragma once

#include <cstdint>

#include "platform/file_manager.h"
#include "store/store_layout.h"

namespace SASM {

// Whether the domain's settings file is there and not empty: only then does
// the list of domains keep it. True also when that cannot be found out.
[[nodiscard]] bool HasSettingsFile(const SimpleString& domain,
                                   const StoreLayout& layout);

// Bytes of the domain's local storage, its directories' own included. 0 for
// a name that is no site's.
[[nodiscard]] std::uint64_t LocalStorageSize(const SimpleString& domain,
                                             const StoreLayout& layout,
                                             const FileManager& files);

}  // namespace SASM
