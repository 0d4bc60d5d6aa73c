// Puts the language files and the addresses together, and refuses to compile
// when one of them is broken.
#include "strings/string_table.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "strings/languages/czech.h"
#include "strings/languages/dutch.h"
#include "strings/languages/english.h"
#include "strings/languages/french.h"
#include "strings/languages/german.h"
#include "strings/languages/italian.h"
#include "strings/languages/japanese.h"
#include "strings/languages/korean.h"
#include "strings/languages/polish.h"
#include "strings/languages/portuguese.h"
#include "strings/languages/russian.h"
#include "strings/languages/simplified_chinese.h"
#include "strings/languages/spanish.h"
#include "strings/languages/swedish.h"
#include "strings/languages/traditional_chinese.h"
#include "strings/languages/turkish.h"
#include "strings/table_checks.h"
#include "strings/web_addresses.h"

namespace NCPStrings {
namespace {

// In the order of Language.
constexpr std::array<std::span<const TextRow>, kLanguageCount> kTexts = {{
    kEnglishTexts,
    kCzechTexts,
    kGermanTexts,
    kSpanishTexts,
    kFrenchTexts,
    kItalianTexts,
    kJapaneseTexts,
    kKoreanTexts,
    kDutchTexts,
    kPolishTexts,
    kPortugueseTexts,
    kRussianTexts,
    kSwedishTexts,
    kTurkishTexts,
    kSimplifiedChineseTexts,
    kTraditionalChineseTexts,
}};

// One variable for each language: a compiler limits what a single one costs.
template <std::size_t index>
consteval RowFault FirstFaultOf() {
  return FirstFault(kTexts[0], kTexts[index]);
}
template <std::size_t index>
constexpr RowFault kFault = FirstFaultOf<index>();

template <std::size_t... indexes>
consteval bool AllAreSound(std::index_sequence<indexes...>) {
  return (CheckedRow<static_cast<Language>(indexes), kFault<indexes>.id,
                     kFault<indexes>.fault>::kIsSound &&
          ...);
}
static_assert(AllAreSound(std::make_index_sequence<kLanguageCount>()));
static_assert(std::size(kEnglishTexts) + kAddressCount == kTextCount);

using Addresses =
    std::array<std::array<Address, kAddressCount>, kLanguageCount>;

consteval Addresses MakeAddresses() {
  Addresses addresses = {};
  for (std::size_t language = 0; language < kLanguageCount; ++language) {
    for (unsigned int i = 0; i < kAddressCount; ++i) {
      addresses[language][i] = MakeAddress(i, kLanguages[language]);
    }
  }
  return addresses;
}

constexpr Addresses kAddresses = MakeAddresses();

// How many texts stand in front of the addresses.
constexpr std::size_t kTextsBeforeAddresses =
    std::ranges::lower_bound(kEnglishTexts, kFirstAddressId, {}, &TextRow::id) -
    std::begin(kEnglishTexts);

// The text of row `row`, address or not, in a language.
consteval const char* TextAt(std::size_t language, std::size_t row) {
  if (row < kTextsBeforeAddresses) return kTexts[language][row].text;
  const std::size_t link = row - kTextsBeforeAddresses;
  if (link < kAddressCount) return kAddresses[language][link].data();
  return kTexts[language][row - kAddressCount].text;
}

consteval unsigned int IdAt(std::size_t row) {
  if (row < kTextsBeforeAddresses) return kEnglishTexts[row].id;
  const std::size_t link = row - kTextsBeforeAddresses;
  if (link < kAddressCount)
    return kFirstAddressId + static_cast<unsigned int>(link);
  return kEnglishTexts[row - kAddressCount].id;
}

consteval MappingTable MakeMappings() {
  MappingTable mappings = {};
  for (unsigned int row = 0; row < kTextCount; ++row) {
    mappings[row] = {IdAt(row), row};
  }
  return mappings;
}

consteval TextTable MakeTexts() {
  TextTable texts = {};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    texts[i] = TextAt(i / kTextCount, i % kTextCount);
  }
  return texts;
}

}  // namespace

const MappingTable NCPStringsMappingTable = MakeMappings();
const TextTable NCPStringsConstants = MakeTexts();

}  // namespace NCPStrings
