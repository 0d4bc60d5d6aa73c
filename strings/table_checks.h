// What must hold of a language file, checked while it is compiled.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "strings/languages.h"
#include "strings/utf8.h"

namespace NCPStrings {

enum class Fault {
  kNone,
  kRowMissing,
  kRowTooMany,
  kIdNotAscending,
  kIdNotInEnglish,
  kTextEmpty,
  kPlaceholdersDiffer,
  kInvalidUtf8,
  kMarkupCharacter,
  kSharedTextDiffers,
};

struct RowFault {
  unsigned int id;
  Fault fault;
};

// Rows that show one text in two places.
inline constexpr std::array<unsigned int, 2> kSharedTexts[] = {
    {21003, 21106}, {21107, 92001}, {31006, 92002}, {41200, 92003}};

constexpr bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

// The next placeholder, from its "%" to its conversion letter; empty at the
// end. Takes it, and what stands before it, off `text`.
constexpr std::string_view TakePlaceholder(std::string_view* text) {
  const std::size_t start = text->find('%');
  if (start == std::string_view::npos) return {};
  const std::size_t end = text->find_first_of("sdf%", start + 1);
  const std::string_view placeholder = text->substr(
      start, end == std::string_view::npos ? end : end + 1 - start);
  text->remove_prefix(start + placeholder.size());
  return placeholder;
}

constexpr bool HaveSamePlaceholders(std::string_view a, std::string_view b) {
  for (;;) {
    const std::string_view placeholder = TakePlaceholder(&a);
    if (placeholder != TakePlaceholder(&b)) return false;
    if (placeholder.empty()) return true;
  }
}

constexpr Fault FaultOfText(std::string_view english, std::string_view text) {
  if (text.empty()) return Fault::kTextEmpty;
  if (!IsUtf8(text)) return Fault::kInvalidUtf8;
  // Some texts are shown as markup, so that these would not be themselves.
  if (text.find_first_of("<>&") != text.npos) return Fault::kMarkupCharacter;
  if (!HaveSamePlaceholders(english, text)) return Fault::kPlaceholdersDiffer;
  return Fault::kNone;
}

constexpr std::string_view TextUnder(unsigned int id,
                                     std::span<const TextRow> rows) {
  for (const TextRow& row : rows) {
    if (row.id == id) return row.text;
  }
  return {};
}

constexpr RowFault FirstFault(std::span<const TextRow> english,
                              std::span<const TextRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const unsigned int id = rows[i].id;
    if (i > 0 && id <= rows[i - 1].id) return {id, Fault::kIdNotAscending};
    if (i >= english.size()) return {id, Fault::kRowTooMany};
    if (id > english[i].id) return {english[i].id, Fault::kRowMissing};
    if (id < english[i].id) return {id, Fault::kIdNotInEnglish};
    const Fault fault = FaultOfText(english[i].text, rows[i].text);
    if (fault != Fault::kNone) return {id, fault};
  }
  if (rows.size() < english.size()) {
    return {english[rows.size()].id, Fault::kRowMissing};
  }
  for (const auto& [first, second] : kSharedTexts) {
    if (TextUnder(first, rows) != TextUnder(second, rows)) {
      return {second, Fault::kSharedTextDiffers};
    }
  }
  return {0, Fault::kNone};
}

// Instantiated for each language: a broken one stops the compiler at a name
// that says the language, the id and the fault.
template <Language language, unsigned int id, Fault fault>
struct CheckedRow {
  static_assert(fault == Fault::kNone,
                "A language file is broken: the name of this instantiation "
                "says in which language, at which id, and how.");
  static constexpr bool kIsSound = true;
};

}  // namespace NCPStrings
