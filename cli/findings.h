// What is wrong with a store, and which no list shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/store_view.h"

struct Finding {
  enum class About { kSite, kPath };

  // A word for programs.
  const char* kind;
  About about;
  // The site or the path.
  std::string subject;
  std::string detail;
};

// Site settings that are intact and not listed have this kind.
inline constexpr char kUnlistedSettings[] = "unlisted-settings";
inline constexpr char kDamagedFile[] = "damaged-file";

// Reads every file of settings and looks at everything below the directories
// of the store. Prints nothing.
[[nodiscard]] std::vector<Finding> FindFaults(const StoreView& store,
                                              const SASM::FileManager& files);
