// The addresses of pages on the maker's web site.
#pragma once

#include <array>
#include <string_view>

#include "strings/languages.h"

namespace NCPStrings {

inline constexpr std::string_view kSiteHost = "www.tessary.example";

// Under the ids from kFirstAddressId on; the update page follows them.
inline constexpr std::string_view kHelpTopics[] = {
    "privacy_controls",  "trusted_locations", "peer_assisted_networking",
    "protected_content", "private_browsing",  "storage",
    "camera_and_mic",    "playback",          "advanced",
};
inline constexpr unsigned int kFirstAddressId = 13000;
inline constexpr unsigned int kAddressCount = std::size(kHelpTopics) + 1;

constexpr bool IsAddressId(unsigned int id) {
  return id >= kFirstAddressId && id - kFirstAddressId < kAddressCount;
}

// An address, NUL-terminated.
using Address = std::array<char, 96>;

// The address that stands under kFirstAddressId + `index` in a language: a help
// page, and under the last id the update page.
consteval Address MakeAddress(unsigned int index,
                              const LanguageTraits& traits) {
  Address address = {};
  std::size_t size = 0;
  const auto append = [&](std::string_view text) {
    for (const char c : text) address.at(size++) = c;
    address.at(size) = '\0';
  };
  if (index < std::size(kHelpTopics)) {
    append("http://");
    append(kSiteHost);
    append("/go/learn_cp_settings_");
    append(kHelpTopics[index]);
    append("_");
    append(traits.site_suffix);
    return address;
  }
  append("https://");
  append(kSiteHost);
  append("/go/corvane-player-updates");
  if (traits.language == Language::kEnglish) return address;
  append("-");
  append(traits.site_suffix);
  return address;
}

}  // namespace NCPStrings
