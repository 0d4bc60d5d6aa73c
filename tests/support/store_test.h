// The settings manager on a home of the test's own. Each test needs a process
// of its own, as a process remembers one home.
#pragma once

#include <gmock/gmock.h>

#include <filesystem>
#include <optional>

#include "platform/linux_file_manager.h"
#include "store/setting_keys.h"
#include "store/settings_manager.h"
#include "tests/support/settings_image.h"
#include "tests/support/temporary_home.h"

class StoreTest : public testing::Test {
 public:
  // Starts the panel's store, once more when it was started.
  void Start() {
    ASSERT_EQ(files_.GetUserSettingsBaseDirectory().c_str(),
              home_ / ".orbelline/Corvane_Player")
        << "run these tests through ctest";
    manager_.reset();
    manager_.emplace(&files_);
  }
  // With those sites listed, each with its files.
  void Begin(const TemporaryHome::Names& sites) {
    home_.AddSites(sites);
    for (const std::string& site : sites) home_.AddData(site, 10);
    Start();
  }
  void WriteMaster(const std::string& entries) const {
    home_.Write(TemporaryHome::MasterFile(), image::File("settings", entries));
  }

  static std::string Storage(const std::string& site) {
    return TemporaryHome::StorageOf(site);
  }
  std::string Master() const { return home_.Read(TemporaryHome::MasterFile()); }
  std::string SiteFile(const std::string& site) const {
    return home_.Read(TemporaryHome::SettingsFileOf(site));
  }
  // As the file has it.
  std::string SiteOnDisk(const std::string& site) const {
    return image::Describe(SiteFile(site));
  }
  std::vector<std::string> ListedOnDisk() const {
    const image::Dictionary master = image::Read(Master());
    return image::NamesOf(*master->find("domains")->value.value.array);
  }
  std::vector<std::string> Listed() {
    return image::NamesOf(*manager_->GetDomains());
  }

  bool SetNumber(const char* key, double value, const std::string& domain) {
    SASM::SettingDataItem item(key, value);
    return manager_->SetSetting(&item, key, domain.c_str());
  }
  // What the store holds; "none" for nothing.
  std::string Held(const char* key, const std::string& domain) {
    const SASM::SettingDataItem* item =
        manager_->GetSetting(key, domain.c_str());
    return item ? image::Describe(*item) : "none";
  }
  std::string Held(const char* key) {
    return Held(key, SASM::SettingsManager::MasterDomain().c_str());
  }

  TemporaryHome home_;
  LinuxFileManager files_;
  std::optional<SASM::SettingsManager> manager_;
};
