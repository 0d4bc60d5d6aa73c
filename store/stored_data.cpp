#include "store/stored_data.h"

#include "store/settings_file.h"

namespace SASM {

SettingsFileSearch::SettingsFileSearch(const StoreLayout& layout)
    : layout_(layout),
      directory_(OpenPlace(AT_FDCWD, layout.SettingsDirectory().c_str())) {}

bool SettingsFileSearch::HasFile(const SimpleString& site) const {
  if (!IsSiteName(site)) return false;
  return directory_.IsOpen()
             ? MayHoldSettings(directory_.Get(),
                               layout_.WayToSettingsFileOf(site))
             : MayHoldSettings(AT_FDCWD, layout_.SettingsFileOf(site));
}

std::uint64_t LocalStorageSize(const SimpleString& domain,
                               const StoreLayout& layout,
                               const FileManager& files) {
  return files.SizeOfFileAtPath(layout.LocalStorageOf(domain));
}

}  // namespace SASM
