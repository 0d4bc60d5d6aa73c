#include "store/stored_data.h"

#include <cerrno>

#include "store/settings_file.h"

namespace SASM {

bool HasSettingsFile(const SimpleString& domain, const StoreLayout& layout,
                     const FileManager& files) {
  if (!IsSiteName(domain)) return false;
  const SimpleString file = layout.SettingsFileOf(domain);
  errno = 0;
  return (files.SizeOfFileAtPath(file) != 0 || LeavesContentUnknown(errno));
}

std::uint64_t LocalStorageSize(const SimpleString& domain,
                               const StoreLayout& layout,
                               const FileManager& files) {
  return files.SizeOfFileAtPath(layout.LocalStorageOf(domain));
}

}  // namespace SASM
