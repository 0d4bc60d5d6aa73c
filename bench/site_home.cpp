#include "bench/site_home.h"

#include "tests/support/settings_image.h"

SiteHome::Names SiteHome::NamesOf(std::size_t count) {
  Names names;
  names.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    names.push_back("www" + std::to_string(i * 7919 % 10) + ".site" +
                    std::to_string(i * 7919 % count) + ".example.com");
  }
  return names;
}

SiteHome::Paths SiteHome::PathsOf(const std::string& home,
                                  const std::string& site) {
  const std::string file = home + "/" + SettingsFileOf(site);
  return {file.substr(0, file.rfind('/')), file, home + "/" + StorageOf(site)};
}

void SiteHome::MakeSites(std::size_t count) {
  std::filesystem::remove_all(*this / ".orbelline");
  sites_ = NamesOf(count);
  AddSites(sites_);
  master_ = Read(MasterFile());
  paths_.clear();
  for (std::size_t i = 0; i < count; ++i) {
    paths_.push_back(PathsOf(Path(), sites_[i]));
    AddStoredFile(i);
  }
}

void SiteHome::RestoreSite(std::size_t index) const {
  const std::string& site = sites_[index];
  Write(SettingsFileOf(site), image::DefaultSiteFile(site));
  AddStoredFile(index);
}

void SiteHome::AddStoredFile(std::size_t index) const {
  AddData(sites_[index], 1 + index % 4096);
}
