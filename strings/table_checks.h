// What must hold of a language file, checked while it is compiled.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "strings/languages.h"
#include "strings/utf8.h"
#include "strings/web_addresses.h"

namespace NCPStrings {

enum class Fault {
  kNone,
  kRowMissing,
  kIdNotAscending,
  kIdNotInEnglish,
  kIdOfAddress,
  kTextEmpty,
  kPlaceholdersDiffer,
  kInvalidUtf8,
  kMarkupCharacter,
  kSharedTextDiffers,
  kBreakAfterOneLetter,
  kBreakBeforeNumber,
};

struct RowFault {
  unsigned int id = 0;
  Fault fault = Fault::kNone;
};

// Rows that show one text in two places.
inline constexpr std::array<unsigned int, 2> kSharedTexts[] = {
    {21003, 21106}, {21107, 92001}, {31006, 92002}, {41200, 92003}};

// Texts that are broken into lines where they are shown.
inline constexpr unsigned int kWrappedTexts[] = {
    11501, 11502, 21002, 21101, 21301, 41002, 41101, 41105, 41106, 51101, 51206,
    51401, 61006, 61008, 61010, 71001, 71003, 71008, 71009, 81001, 84001};

// A compiler limits the steps that a constant may take, and these loops read
// every byte of a language: they call nothing for a byte of ASCII.
constexpr bool IsUtf8(std::string_view text) {
  const char* const end = text.data() + text.size();
  for (const char* next = text.data(); next != end;) {
    const bool is_ascii = static_cast<unsigned char>(*next) < 0x80;
    const std::size_t length = is_ascii ? 1 : SequenceLength({next, end});
    if (length == 0) return false;
    next += length;
  }
  return true;
}

// Some texts are shown as markup, in which these have a meaning.
constexpr bool HasMarkupCharacter(std::string_view text) {
  for (const char c : text) {
    if (c == '<' || c == '>' || c == '&') return true;
  }
  return false;
}

// The next placeholder, from its "%" to its conversion letter; empty at the
// end. Takes it, and everything in front of it, off `text`.
constexpr std::string_view TakePlaceholder(std::string_view* text) {
  std::size_t start = 0;
  for (const char c : *text) {
    if (c == '%') break;
    ++start;
  }
  text->remove_prefix(start);
  const std::size_t letter = text->find_first_of("sdf%", 1);
  const std::string_view placeholder =
      text->substr(0, letter == text->npos ? letter : letter + 1);
  text->remove_prefix(placeholder.size());
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
  if (HasMarkupCharacter(text)) return Fault::kMarkupCharacter;
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

constexpr RowFault FirstFaultOfIds(std::span<const TextRow> rows) {
  unsigned int last = 0;
  for (const TextRow& row : rows) {
    if (row.id <= last) return {row.id, Fault::kIdNotAscending};
    if (IsAddressId(row.id)) return {row.id, Fault::kIdOfAddress};
    last = row.id;
  }
  return {};
}

// The ids of both are ascending.
constexpr RowFault FirstDifference(std::span<const TextRow> english,
                                   std::span<const TextRow> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const unsigned int id = rows[i].id;
    if (i >= english.size() || id < english[i].id) {
      return {id, Fault::kIdNotInEnglish};
    }
    if (id > english[i].id) return {english[i].id, Fault::kRowMissing};
    const Fault fault = FaultOfText(english[i].text, rows[i].text);
    if (fault != Fault::kNone) return {id, fault};
  }
  if (rows.size() == english.size()) return {};
  return {english[rows.size()].id, Fault::kRowMissing};
}

constexpr RowFault FirstFaultOfSharedTexts(std::span<const TextRow> rows) {
  for (const auto& [first, second] : kSharedTexts) {
    if (TextUnder(first, rows) != TextUnder(second, rows)) {
      return {second, Fault::kSharedTextDiffers};
    }
  }
  return {};
}

// Latin and Cyrillic letters beyond ASCII take two bytes; all other characters
// of a text that do begin with 0xC2.
constexpr bool BeginsLetter(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         (byte > 0xC2 && byte < 0xE0);
}

constexpr bool HasOneLetterWords(Language language) {
  for (const Language listed : kWithOneLetterWords) {
    if (listed == language) return true;
  }
  return false;
}

// A line may end at a plain blank, but not at a no-break space.
constexpr Fault FaultOfBreaks(Language language, std::string_view text) {
  const bool joins_letters = HasOneLetterWords(language);
  int letters = 0;  // of the word so far
  char last = '\0';
  for (const char c : text) {
    const bool is_break = c == ' ';
    if (last == ' ' && c >= '0' && c <= '9') return Fault::kBreakBeforeNumber;
    if (is_break && letters == 1 && joins_letters) {
      return Fault::kBreakAfterOneLetter;
    }
    const bool is_no_break = last == '\xC2' && c == '\xA0';
    letters = is_break || is_no_break ? 0 : letters + BeginsLetter(c);
    last = c;
  }
  return Fault::kNone;
}

constexpr RowFault FirstFaultOfBreaks(Language language,
                                      std::span<const TextRow> rows) {
  // The English texts are given, and broken as they are.
  if (language == Language::kEnglish) return {};
  for (const unsigned int id : kWrappedTexts) {
    const Fault fault = FaultOfBreaks(language, TextUnder(id, rows));
    if (fault != Fault::kNone) return {id, fault};
  }
  return {};
}

constexpr RowFault FirstFault(std::span<const TextRow> english,
                              std::span<const TextRow> rows) {
  RowFault found = FirstFaultOfIds(rows);
  if (found.fault == Fault::kNone) found = FirstDifference(english, rows);
  if (found.fault == Fault::kNone) found = FirstFaultOfSharedTexts(rows);
  return found;
}

// Instantiated for each language: a broken one stops the compiler at a name
// that says the language, the id and the fault.
template <Language language, unsigned int id, Fault fault>
struct CheckedRow {
  static constexpr bool kIsSound = fault == Fault::kNone;
  static_assert(kIsSound,
                "A language file is broken: the name of this instantiation "
                "says in which language, at which id, and how.");
};

}  // namespace NCPStrings
