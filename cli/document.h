// All settings, or some, as one JSON document.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/json.h"
#include "settings/settings_dictionary.h"
#include "store/setting_keys.h"

inline constexpr char kDocumentFormat[] = "corvane-player-settings 1";

// Keys of the global settings that are no entries of a document, which has
// members of its own for them: "sites" and "trusted_locations".
inline constexpr std::string_view kKeysWithOwnMember[] = {SASM::kDomains,
                                                          SASM::kTrustedPaths};

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

// An array of the entries but those with these keys, sorted by key. The caller
// owns it.
[[nodiscard]] json_t* NewEntries(const SASM::SettingsDictionary& settings,
                                 std::span<const std::string_view> left_out);
