#include "tests/support/home_file_manager.h"

using SASM::SimpleString;

HomeFileManager::HomeFileManager(const TemporaryHome& home)
    : base_((home / ".orbelline/Corvane_Player").c_str()),
      asset_cache_((home / TemporaryHome::kAssetCache).c_str()),
      licences_((home / TemporaryHome::kLicences).c_str()) {}

const SimpleString& HomeFileManager::GetAssetCacheDirectory() const {
  return asset_cache_;
}

const SimpleString& HomeFileManager::GetUserSettingsBaseDirectory() const {
  return base_;
}

const SimpleString& HomeFileManager::GetDRMLicenseDataDirectory() const {
  return licences_;
}
