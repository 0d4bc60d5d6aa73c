// All settings, or some, as one JSON document.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/json.h"
#include "settings/settings_dictionary.h"

inline constexpr char kDocumentFormat[] = "corvane-player-settings 1";

// Its names and keys are those of the store, its texts can be stored whole.
struct Document {
  // Each key once.
  using Entries = std::vector<SASM::SettingDataItem>;
  struct Site {
    SASM::SimpleString name;
    bool is_listed = true;
    Entries settings;
  };

  // None where the document has no such member.
  std::optional<Entries> global;
  std::optional<std::vector<std::string>> trusted_locations;
  // Each name once.
  std::optional<std::vector<Site>> sites;
};

// Larger ones are refused.
inline constexpr std::size_t kLargestDocument = std::size_t{64} << 20;

// Reads the file, or standard input for "-". False when it cannot be read or
// is no such document: `*problem` is then "FILE: what is wrong", with line and
// column, or the member, behind the name of the file.
[[nodiscard]] bool ReadDocument(const char* file, Document* document,
                                std::string* problem);
// The part behind the reading of the file.
[[nodiscard]] bool ParseDocument(std::string_view text, Document* document,
                                 std::string* problem);

// An array of the entries, sorted by key, without those of some keys. The
// caller owns it.
[[nodiscard]] json_t* NewEntries(const SASM::SettingsDictionary& settings,
                                 const std::vector<std::string_view>& without);
