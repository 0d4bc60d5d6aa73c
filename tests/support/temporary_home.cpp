#include "tests/support/temporary_home.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "tests/support/settings_image.h"

namespace fs = std::filesystem;

TemporaryHome::TemporaryHome() {
  std::string pattern = fs::temp_directory_path() / "home-XXXXXX";
  path_ = mkdtemp(pattern.data());
  if (const char* home = std::getenv("HOME")) former_home_ = home;
  setenv("HOME", path_.c_str(), 1);
}

TemporaryHome::~TemporaryHome() {
  setenv("HOME", path_.c_str(), 1);
  // Tests take permissions away, and make trees too deep for a path.
  const char* command =
      "chmod -R u+rwx \"$HOME\" 2>/dev/null; rm -rf \"$HOME\"";
  EXPECT_EQ(std::system(command), 0);
  setenv("HOME", former_home_.c_str(), 1);
}

std::string TemporaryHome::operator/(const std::string& name) const {
  return path_ / name;
}

void TemporaryHome::Write(const std::string& name,
                          const std::string& bytes) const {
  const fs::path file = path_ / name;
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << bytes;
}

std::string TemporaryHome::Read(const std::string& name) const {
  std::ifstream file(path_ / name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  return (std::ostringstream() << file.rdbuf()).str();
}

bool TemporaryHome::Has(const std::string& name) const {
  return fs::exists(fs::symlink_status(path_ / name));
}

TemporaryHome::Names TemporaryHome::List() const {
  Names names;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    names.push_back(entry.path().lexically_relative(path_));
  }
  std::ranges::sort(names);
  return names;
}

TemporaryHome::Snapshot TemporaryHome::Take() const {
  Snapshot snapshot;
  const std::size_t start = path_.native().size() + 1;
  for (const auto& entry : fs::recursive_directory_iterator(path_)) {
    const std::string name = entry.path().native().substr(start);
    if (entry.is_directory()) {
      snapshot[name + "/"];
    } else {
      snapshot[name] = Read(name);
    }
  }
  return snapshot;
}

void TemporaryHome::Restore(const Snapshot& snapshot) const {
  if (Take() == snapshot) return;
  for (const auto& entry : fs::directory_iterator(path_)) {
    fs::remove_all(entry.path());
  }
  for (const auto& [name, bytes] : snapshot) {
    if (name.ends_with('/')) {
      fs::create_directories(path_ / name);
    } else {
      Write(name, bytes);
    }
  }
}

std::string TemporaryHome::MasterFile() {
  return std::string(kSettings) + "/settings.sol";
}

std::string TemporaryHome::SettingsFileOf(const std::string& domain) {
  return std::string(kSettings) + "/#" + domain + "/settings.sol";
}

std::string TemporaryHome::StorageOf(const std::string& site) {
  return std::string(kSharedObjects) + "/QK5SFBDP/" + site;
}

void TemporaryHome::AddSites(const Names& sites, const Names& locations) const {
  for (const std::string& site : sites) {
    Write(SettingsFileOf(site), image::DefaultSiteFile(site));
  }
  Write(MasterFile(),
        image::DefaultMasterFile(image::Flags(sites), image::Flags(locations)));
}

void TemporaryHome::AddData(const std::string& site, std::size_t bytes) const {
  Write(StorageOf(site) + "/data", std::string(bytes, 'x'));
}
