#include "tests/support/panel_home.h"

#include <filesystem>
#include <memory>

#include "tests/support/settings_image.h"

namespace fs = std::filesystem;

void PanelHome::AddSites(const Names& sites, const Names& locations) const {
  for (const std::string& site : sites) {
    Write(SettingsFileOf(site), image::DefaultSiteFile(site));
  }
  Write(MasterFile(),
        image::DefaultMasterFile(image::Flags(sites), image::Flags(locations)));
}

std::string PanelHome::AddData(const std::string& site,
                               std::size_t bytes) const {
  const std::string file = StorageOf(site) + "/data";
  Write(file, std::string(bytes, 'x'));
  return file;
}

std::string PanelHome::Stored(const std::string& site, const char* key) const {
  const std::string file =
      site == kMaster ? MasterFile() : SettingsFileOf(site);
  const image::Dictionary settings =
      Has(file) ? image::Read(Read(file)) : nullptr;
  if (!settings) return "no settings";
  const auto entry = settings->find(key);
  return entry == settings->end() ? "" : image::Value(entry->value);
}

TemporaryHome::Snapshot PanelHome::Disk() const {
  Snapshot disk = Take();
  for (auto& [name, bytes] : disk) {
    if (name.ends_with('/')) continue;
    const auto written = fs::last_write_time(*this / name);
    bytes += " " + std::to_string(written.time_since_epoch().count());
  }
  return disk;
}
