// A file manager of one test.
#pragma once

#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

// The real one, with the data directories of the given home, whatever an
// earlier test made the process remember.
class HomeFileManager : public LinuxFileManager {
 public:
  explicit HomeFileManager(const TemporaryHome& home)
      : base_((home / ".orbelline/Corvane_Player").c_str()),
        asset_cache_((home / TemporaryHome::kAssetCache).c_str()),
        licences_((home / TemporaryHome::kLicences).c_str()) {}

  const SASM::SimpleString& GetAssetCacheDirectory() const override {
    return asset_cache_;
  }
  const SASM::SimpleString& GetUserSettingsBaseDirectory() const override {
    return base_;
  }
  const SASM::SimpleString& GetDRMLicenseDataDirectory() const override {
    return licences_;
  }

 private:
  SASM::SimpleString base_;
  SASM::SimpleString asset_cache_;
  SASM::SimpleString licences_;
};
