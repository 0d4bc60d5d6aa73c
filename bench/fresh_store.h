// A store that is opened again.
#pragma once

#include <memory>

#include "model/setting_base.h"
#include "platform/linux_file_manager.h"

inline std::unique_ptr<SASM::SettingsManager> g_store;

inline void CloseStore() {
  SettingBase::mSettingsManager = nullptr;
  g_store.reset();
}

// Opens the store on what is now in the home directory, for every setting of
// the process, in place of one that was open.
inline void OpenFreshStore() {
  static LinuxFileManager files;
  CloseStore();
  g_store = std::make_unique<SASM::SettingsManager>(&files);
  SettingBase::mSettingsManager = g_store.get();
}
