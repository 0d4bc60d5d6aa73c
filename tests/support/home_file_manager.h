// A file manager of one test.
#pragma once

#include <functional>
#include <string>

#include "platform/linux_file_manager.h"
#include "tests/support/temporary_home.h"

// The real one, with the data directories of the given home, whatever an
// earlier test made the process remember. Steps can be made to fail.
class HomeFileManager : public LinuxFileManager {
 public:
  explicit HomeFileManager(const TemporaryHome& home);

  // Each, where it is set, is asked with the path; false when the step shall
  // fail. What comes before a removal may also change the disk.
  using Hook = std::function<bool(const std::string& path)>;
  Hook before_creation;
  Hook before_removal;

  bool RemoveFileAtPath(const SASM::SimpleString& path) override;
  bool CreateDirectoryAtPath(const SASM::SimpleString& path,
                             const SASM::SimpleString& name) override;
  const SASM::SimpleString& GetAssetCacheDirectory() const override;
  const SASM::SimpleString& GetUserSettingsBaseDirectory() const override;
  const SASM::SimpleString& GetDRMLicenseDataDirectory() const override;

 private:
  SASM::SimpleString base_;
  SASM::SimpleString asset_cache_;
  SASM::SimpleString licences_;
};
