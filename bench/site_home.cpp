#include "bench/site_home.h"

#include "bench/bare_calls.h"
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

std::vector<SiteHome::Paths> SiteHome::PathsOf(const std::string& home,
                                               const Names& sites) {
  std::vector<Paths> paths;
  for (const std::string& site : sites) {
    const std::string file = home + "/" + SettingsFileOf(site);
    paths.push_back(
        {file.substr(0, file.rfind('/')), file, home + "/" + StorageOf(site)});
  }
  return paths;
}

void ReadSiteFiles(const std::vector<SiteHome::Paths>& sites) {
  std::vector<char> buffer(65536);
  for (const SiteHome::Paths& site : sites) {
    ReadFile(site.settings_file, &buffer);
  }
}

void SiteHome::MakeSites(std::size_t count) {
  std::filesystem::remove_all(*this / ".orbelline");
  sites_ = NamesOf(count);
  paths_ = PathsOf(Path(), sites_);
  AddSites(sites_);
  master_ = Read(MasterFile());
  for (std::size_t i = 0; i < count; ++i) AddStoredFile(i);
}

void SiteHome::RemoveSites(std::size_t step) const {
  for (std::size_t i = 0; i < sites_.size(); i += step) {
    RemoveTree(paths_[i].storage);
    RemoveTree(paths_[i].settings_directory);
  }
  RewriteFile(MasterPath(), std::string_view(master_).substr(
                                0, master_.size() - master_.size() / step));
}

void SiteHome::RestoreSites(std::size_t step) const {
  for (std::size_t i = 0; i < sites_.size(); i += step) {
    Write(SettingsFileOf(sites_[i]), image::DefaultSiteFile(sites_[i]));
    AddStoredFile(i);
  }
  Write(MasterFile(), master_);
}

void SiteHome::AddStoredFile(std::size_t index) const {
  AddData(sites_[index], 1 + index % 4096);
}
