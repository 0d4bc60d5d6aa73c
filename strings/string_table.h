// All texts in all languages, as constant data.
#pragma once

#include <array>
#include <cstddef>

#include "strings/languages.h"
#include "strings/web_addresses.h"

namespace NCPStrings {

inline constexpr std::size_t kTextCount =
    std::size(kEnglishTexts) + kAddressCount;

// An id and the row of the text table that holds its text.
struct StringMapping {
  unsigned int id;
  unsigned int row;
};

using MappingTable = std::array<StringMapping, kTextCount>;
using TextTable = std::array<const char*, kLanguageCount * kTextCount>;

// Ascending by id; the record at position r holds row r.
extern const MappingTable NCPStringsMappingTable;

// The text of a row in a language is at language x kTextCount + row. UTF-8,
// never null.
extern const TextTable NCPStringsConstants;

}  // namespace NCPStrings
