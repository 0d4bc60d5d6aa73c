// A file manager of one test.
#pragma once

#include <functional>
#include <string>

#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

// The real one, with the data directories of the given home, whatever an
// earlier test made the process remember. Removals can be made to fail.
class HomeFileManager : public LinuxFileManager {
 public:
  explicit HomeFileManager(const TemporaryHome& home);

  // Asked with the path, where it is set: false when the removal shall fail.
  std::function<bool(const std::string& path)> before_removal;

  bool RemoveFileAtPath(const SASM::SimpleString& path) override;
  const SASM::SimpleString& GetAssetCacheDirectory() const override;
  const SASM::SimpleString& GetUserSettingsBaseDirectory() const override;
  const SASM::SimpleString& GetDRMLicenseDataDirectory() const override;

 private:
  SASM::SimpleString base_;
  SASM::SimpleString asset_cache_;
  SASM::SimpleString licences_;
};
