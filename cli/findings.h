// What is wrong in a store, or is in it and listed nowhere.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/store_view.h"

struct Finding {
  enum class About { kSite, kPath };

  // One of the words below.
  const char* kind;
  About about;
  // The site or the path.
  std::string subject;
  std::string detail;
};

// The kinds of findings, as words for programs.
inline constexpr char kUnlistedSettings[] = "unlisted-settings";  // intact ones
inline constexpr char kUnlistedData[] = "unlisted-data";
inline constexpr char kMissingFile[] = "missing-file";  // of a listed site
inline constexpr char kDamagedFile[] = "damaged-file";
inline constexpr char kForeignOwner[] = "foreign-owner";
inline constexpr char kLinkedDirectory[] = "link";  // in place of a directory
// Below "#SharedObjects", where only the first directory counts.
inline constexpr char kFurtherDirectory[] = "further-directory";
inline constexpr char kImpossibleName[] = "impossible-name";
inline constexpr char kDuplicateName[] = "duplicate-name";

// Reads every file of settings and looks at everything below the directories
// of the store. Prints nothing.
[[nodiscard]] std::vector<Finding> FindFaults(const StoreView& store);
