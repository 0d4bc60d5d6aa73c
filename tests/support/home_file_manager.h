// A file manager of one test.
#pragma once

#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

// The real one, with the data directories of the given home, whatever an
// earlier test made the process remember.
class HomeFileManager : public LinuxFileManager {
 public:
  explicit HomeFileManager(const TemporaryHome& home);

  const SASM::SimpleString& GetAssetCacheDirectory() const override;
  const SASM::SimpleString& GetUserSettingsBaseDirectory() const override;
  const SASM::SimpleString& GetDRMLicenseDataDirectory() const override;

 private:
  SASM::SimpleString base_;
  SASM::SimpleString asset_cache_;
  SASM::SimpleString licences_;
};
