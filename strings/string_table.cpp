// Puts the language files and the addresses together, and refuses to compile
// when a file is broken.
#include "strings/string_table.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "strings/languages.h"
#include "strings/table_checks.h"
#include "strings/web_addresses.h"

namespace NCPStrings {
namespace {

// Variables for each language: a compiler limits the steps of a single one.
template <std::size_t index>
constexpr RowFault kFault = FirstFault(kLanguageFiles[0],
                                       kLanguageFiles[index]);
template <std::size_t index>
constexpr RowFault kFaultOfBreaks =
    FirstFaultOfBreaks(static_cast<Language>(index), kLanguageFiles[index]);

template <std::size_t index, const RowFault& found>
constexpr bool kIsSound =
    CheckedRow<static_cast<Language>(index), found.id, found.fault>::kIsSound;

template <std::size_t... indexes>
consteval bool AllAreSound(std::index_sequence<indexes...>) {
  return ((kIsSound<indexes, kFault<indexes>> &&
           kIsSound<indexes, kFaultOfBreaks<indexes>>)&&...);
}
constexpr bool kFilesAreSound =
    AllAreSound(std::make_index_sequence<kLanguageCount>());

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

// The texts of a language with its addresses among them, ascending by id.
consteval std::array<TextRow, kTextCount> RowsOf(std::size_t language) {
  std::array<TextRow, kTextCount> rows = {};
  // The compiler has reported the broken file: say nothing about the rest.
  if (!kFilesAreSound) return rows;
  const std::span<const TextRow> file = kLanguageFiles[language];
  const auto behind =
      std::ranges::lower_bound(file, kFirstAddressId, {}, &TextRow::id);
  auto row = std::copy(file.begin(), behind, rows.begin());
  for (unsigned int i = 0; i < kAddressCount; ++i) {
    *row++ = {kFirstAddressId + i, kAddresses[language][i].data()};
  }
  std::copy(behind, file.end(), row);
  return rows;
}

consteval MappingTable MakeMappings() {
  MappingTable mappings = {};
  const auto rows = RowsOf(0);
  for (unsigned int row = 0; row < kTextCount; ++row) {
    mappings[row] = {rows[row].id, row};
  }
  return mappings;
}

consteval TextTable MakeTexts() {
  TextTable texts = {};
  for (std::size_t language = 0; language < kLanguageCount; ++language) {
    std::ranges::transform(RowsOf(language),
                           texts.begin() + language * kTextCount,
                           &TextRow::text);
  }
  return texts;
}

}  // namespace

const MappingTable NCPStringsMappingTable = MakeMappings();
const TextTable NCPStringsConstants = MakeTexts();

}  // namespace NCPStrings
