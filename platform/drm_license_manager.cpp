#include "platform/drm_license_manager.h"

namespace SASM {

DRMLicenseManager::DRMLicenseManager(FileManager* file_manager)
    : mLicenseDataDirectory(file_manager->GetDRMLicenseDataDirectory()),
      mFileManager(file_manager) {}

DRMLicenseManager::~DRMLicenseManager() { mFileManager = nullptr; }

bool DRMLicenseManager::Reset() {
  return mFileManager->RemoveFileAtPath(mLicenseDataDirectory);
}

}  // namespace SASM
