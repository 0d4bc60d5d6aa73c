#include "store/stored_data.h"

#include "store/settings_file.h"

namespace SASM {

bool HasSettingsFile(const SimpleString& domain, const StoreLayout& layout) {
  return IsSiteName(domain) && MayHoldSettings(layout.SettingsFileOf(domain));
}

std::uint64_t LocalStorageSize(const SimpleString& domain,
                               const StoreLayout& layout,
                               const FileManager& files) {
  return files.SizeOfFileAtPath(layout.LocalStorageOf(domain));
}

}  // namespace SASM
