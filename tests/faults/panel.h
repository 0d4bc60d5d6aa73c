// The store as the panel holds it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux_file_manager.h"
#include "store/settings_manager.h"

struct Panel {
  Panel() = default;
  ~Panel();
  void Start();

  bool SetNumber(const char* key, double value, const char* domain);
  // NaN when none is held.
  [[nodiscard]] double Number(const char* key, const char* domain);
  [[nodiscard]] std::vector<std::string> Sites();
  // All defaults and the list of sites are there.
  void ExpectWhole();

  static const char* Master();

  LinuxFileManager files;
  std::optional<SASM::SettingsManager> manager;
};

// A panel started now is whole, a site can be added and changed, and is there
// at the next start.
void ExpectUsable();
