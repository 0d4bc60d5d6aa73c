// A home with what the panel keeps in it.
#pragma once

#include <string>
#include <vector>

#include "tests/support/temporary_home.h"

// Fills a home as the player and the panel do, and reads back what stands on
// disk.
class PanelHome : public TemporaryHome {
 public:
  using Names = std::vector<std::string>;

  // Default settings with lists of known sites, which have theirs, and of
  // trusted locations, in the place of earlier ones.
  void AddSites(const Names& sites, const Names& locations = {}) const;
  // A file in the site's local storage; its name from the home.
  std::string AddData(const std::string& site, std::size_t bytes) const;

  // The value under a key in the settings file of a site, or of all for
  // kMaster: "true", "100", "[a=true b=true]"; "" when there is none,
  // "no settings" when there is no file of settings.
  [[nodiscard]] std::string Stored(const std::string& site,
                                   const char* key) const;
  // As taken, with the time when each file was written behind its bytes.
  [[nodiscard]] Snapshot Disk() const;

  static constexpr char kMaster[] = "";
};
