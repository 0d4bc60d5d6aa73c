#include "store/stored_data.h"

namespace SASM {

bool HasSettingsFile(const SimpleString& domain, const StoreLayout& layout,
                     const FileManager& files) {
  if (!HasPlace(domain)) return false;
  const SimpleString file = layout.SettingsFileOf(domain);
  return !file.HasText() || files.SizeOfFileAtPath(file) != 0;
}

std::uint64_t LocalStorageSize(const SimpleString& domain,
                               const StoreLayout& layout,
                               const FileManager& files) {
  if (!StaysInside(domain) || domain == MasterDomainName()) return 0;
  return files.SizeOfFileAtPath(layout.LocalStorageOf(domain));
}

}  // namespace SASM
