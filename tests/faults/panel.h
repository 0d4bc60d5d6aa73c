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
  // NaN for a missing number.
  [[nodiscard]] double Number(const char* key, const char* domain);
  [[nodiscard]] std::vector<std::string> Sites();
  // Expects all defaults and the list of sites.
  void ExpectWhole();

  static const char* Master();

  LinuxFileManager files;
  std::optional<SASM::SettingsManager> manager;
};

// Expects that a new panel is whole, that a site can be added and changed, and
// that the next start finds it.
void ExpectUsable();
