// The reset of the protected-content licence data.
#pragma once

#include "platform/file_manager.h"

namespace SASM {

// Deletes the licences of rented or bought audio and video. Reads none, checks
// none, and leaves everything else alone.
class DRMLicenseManager {
 public:
  // The file manager is borrowed and outlives this object.
  explicit DRMLicenseManager(FileManager* file_manager);
  ~DRMLicenseManager();

  // Removes the licence data directory with everything in it. False when
  // something could not be removed; what could be is gone. True also when
  // there is no such directory.
  [[nodiscard]] bool Reset();

 private:
  SimpleString mLicenseDataDirectory;
  FileManager* mFileManager;
};

}  // namespace SASM
