// A home with what the panel keeps in it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/temporary_home.h"

// Fills a home as the player and the panel do, through the panel's own store,
// and reads back what stands on disk. The store finds the home once for a
// process, so a process can have one.
class PanelHome : public TemporaryHome {
 public:
  using Names = std::vector<std::string>;

  // Known sites with default settings.
  void AddSites(const Names& sites) const;
  void AddLocations(const Names& locations) const;
  // A file in the site's local storage; its name from the home.
  std::string AddData(const std::string& site, std::size_t bytes) const;

  // The value under a key in the settings file of a site, or of all for
  // kMaster: "true", "100", "[a b]" of the names in an array; "" when there
  // is none, "no settings" when there is no file of settings.
  [[nodiscard]] std::string Stored(const std::string& site,
                                   const char* key) const;
  // Every file: its bytes, and when it was written.
  [[nodiscard]] std::map<std::string, std::string> Disk() const;

  static constexpr char kMaster[] = "";
};
