// A home directory with something of everything in it, and the store on it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux_file_manager.h"
#include "store/settings_manager.h"
#include "tests/support/temporary_home.h"

// Relative path to content; of a directory the path ends in "/".
using Snapshot = std::map<std::string, std::string>;

// Two sites, "a.example" and "b.example", with settings and stored data, an
// asset cache and licences; global settings other than the defaults; and files
// around them that are nobody's business.
class PanelHome {
 public:
  PanelHome();

  // Puts everything back as it was made; without `with_panel_files` only the
  // files around.
  void Reset(bool with_panel_files) const;
  [[nodiscard]] Snapshot Take() const;
  [[nodiscard]] const TemporaryHome& Home() const { return home_; }

 private:
  TemporaryHome home_;
  Snapshot around_;
  Snapshot whole_;
};

// The store as the panel holds it.
struct Panel {
  Panel() = default;
  ~Panel();
  void Start();

  [[nodiscard]] std::vector<std::string> Sites();
  [[nodiscard]] std::optional<double> Number(const char* key,
                                             const char* domain);

  LinuxFileManager files;
  std::optional<SASM::SettingsManager> manager;
};

// Empty when a panel started now can be used: all defaults and the list of
// sites are there, a site can be added and changed, and is there at the next
// start. Otherwise what is wrong.
[[nodiscard]] std::string WhyUnusable();
