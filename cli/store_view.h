// The store as the panel would show it, from files that are only read.
#pragma once

#include <array>
#include <cstdint>

#include "cli/settings_source.h"
#include "model/permissions.h"
#include "store/store_layout.h"

// A state for each of kPermissions.
using PermissionStates = std::array<PermissionState, kPermissionCount>;

struct GlobalSettings {
  PermissionStates states = {};
  double storage_limit_kb = 0;
};

struct SiteSettings {
  PermissionStates states = {};
  double storage_limit_kb = 0;
  std::uint64_t storage_used_bytes = 0;
  bool is_intact = false;
};

// Reads the master settings once, and a site's when it is asked for. Where
// the panel would put defaults on disk, they are put in memory. Standard error
// tells of every file that is damaged or cannot be read.
class StoreView {
 public:
  // The file manager is borrowed and outlives this object.
  explicit StoreView(const SASM::FileManager& files);

  // False when the user has no home directory, or when the master settings
  // are there but could not be read whole.
  [[nodiscard]] bool IsIntact() const { return is_intact_; }

  [[nodiscard]] GlobalSettings Global() const;
  // Elements named by paths, and by sites; borrowed, null when there are
  // none. Not every site that is listed is known.
  [[nodiscard]] const SASM::SDIVector* TrustedLocations() const;
  [[nodiscard]] const SASM::SDIVector* ListedSites() const;

  // Whether the panel shows the listed site.
  [[nodiscard]] bool IsKnown(const SASM::SimpleString& site) const;
  [[nodiscard]] SiteSettings Read(const SASM::SimpleString& name) const;

 private:
  const SASM::FileManager& files_;
  SASM::StoreLayout layout_;
  std::unique_ptr<SASM::SettingsDictionary> master_;
  bool is_intact_ = false;
};
