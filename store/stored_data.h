// What is on disk for a site, found without changing anything.
#pragma once

#include <cstdint>

#include "platform/file_descriptor.h"
#include "platform/file_manager.h"
#include "store/store_layout.h"

namespace SASM {

// Finds settings files, of which only those that are there and not empty keep a
// site in the list of domains.
class SettingsFileSearch {
 public:
  // The layout is borrowed and outlives this object, which keeps a descriptor.
  explicit SettingsFileSearch(const StoreLayout& layout);

  // Whether the site has such a file. True also when that cannot be found out.
  [[nodiscard]] bool HasFile(const SimpleString& site) const;

 private:
  const StoreLayout& layout_;
  FileDescriptor directory_;
};

// Bytes of the domain's local storage, its directories' own included. 0 for
// a name that is no site's.
[[nodiscard]] std::uint64_t LocalStorageSize(const SimpleString& domain,
                                             const StoreLayout& layout,
                                             const FileManager& files);

}  // namespace SASM
