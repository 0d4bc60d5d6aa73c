// The store as the panel would show it, without changing any file.
#pragma once

#include <array>
#include <cstdint>

#include "cli/settings_source.h"
#include "model/permissions.h"
#include "store/store_layout.h"

// The permissions of a site, or those of all sites.
struct PermissionSettings {
  // By PermissionKind.
  std::array<PermissionState, kPermissionCount> states = {};
  double storage_limit_kb = 0;
};

struct SiteSettings {
  // Borrowed from the list of sites.
  const char* name = nullptr;
  PermissionSettings permissions;
  std::uint64_t storage_used_bytes = 0;
  bool is_intact = false;
};

// Reads the master settings once, and the settings of a site on request.
// Defaults that the panel would write to disk are added in memory. Damaged and
// unreadable files are reported on standard error.
class StoreView {
 public:
  // The file manager is borrowed and must outlive this object.
  explicit StoreView(const SASM::FileManager& files);

  // False when the user has no home directory, or when the file of the master
  // settings exists and is damaged or unreadable.
  [[nodiscard]] bool IsIntact() const { return is_intact_; }

  [[nodiscard]] PermissionSettings Global() const;
  // Lists whose elements are named by a path or a site. Borrowed; null when
  // nothing is stored.
  [[nodiscard]] const SASM::SDIVector* TrustedLocations() const;
  [[nodiscard]] const SASM::SDIVector* ListedSites() const;

  // The panel shows only listed sites that have settings.
  [[nodiscard]] bool HasSettings(const SASM::SimpleString& site) const;
  [[nodiscard]] SiteSettings Read(const SASM::SimpleString& site) const;

 private:
  const SASM::FileManager& files_;
  SASM::StoreLayout layout_;
  std::unique_ptr<SASM::SettingsDictionary> master_;
  bool is_intact_ = false;
};
