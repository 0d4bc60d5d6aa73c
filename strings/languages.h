// The languages: one row each.
#pragma once

#include <iterator>
#include <span>

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
#include "strings/text_row.h"

namespace NCPStrings {

// The languages in the order of their indexes: a new one goes last. The first
// is the default. A row:
//   name         makes Language::kName, and kNameTexts are its texts
//   code         the language code of a locale name that chooses it
//   site suffix  the end of its addresses on the maker's web site
//   locale       one that speaks it, for tests and pictures
// The two kinds of Chinese share a code: see kTraditionalChineseLocales.
// scripts/languages.sh reads these rows, too.
#define NCP_LANGUAGES(ROW)                    \
  ROW(English, "en", "en", "en_US")           \
  ROW(Czech, "cs", "cz", "cs_CZ")             \
  ROW(German, "de", "de", "de_DE")            \
  ROW(Spanish, "es", "es", "es_ES")           \
  ROW(French, "fr", "fr", "fr_FR")            \
  ROW(Italian, "it", "it", "it_IT")           \
  ROW(Japanese, "ja", "jp", "ja_JP")          \
  ROW(Korean, "ko", "kr", "ko_KR")            \
  ROW(Dutch, "nl", "nl", "nl_NL")             \
  ROW(Polish, "pl", "pl", "pl_PL")            \
  ROW(Portuguese, "pt", "br", "pt_BR")        \
  ROW(Russian, "ru", "ru", "ru_RU")           \
  ROW(Swedish, "sv", "se", "sv_SE")           \
  ROW(Turkish, "tr", "tr", "tr_TR")           \
  ROW(SimplifiedChinese, "zh", "cn", "zh_CN") \
  ROW(TraditionalChinese, "zh", "tw", "zh_TW")

// The position of a language's block in the text table.
enum class Language : int {
#define NCP_ENUMERATOR(name, code, site_suffix, locale) k##name,
  NCP_LANGUAGES(NCP_ENUMERATOR)
#undef NCP_ENUMERATOR
};

struct LanguageTraits {
  Language language;
  const char* code;
  const char* site_suffix;
  const char* locale;
};

inline constexpr LanguageTraits kLanguages[] = {
#define NCP_TRAITS(name, code, site_suffix, locale) \
  {Language::k##name, code, site_suffix, locale},
    NCP_LANGUAGES(NCP_TRAITS)
#undef NCP_TRAITS
};

// Only to be read while compiling: the text table holds the same texts.
inline constexpr std::span<const TextRow> kLanguageFiles[] = {
#define NCP_FILE(name, code, site_suffix, locale) k##name##Texts,
    NCP_LANGUAGES(NCP_FILE)
#undef NCP_FILE
};
#undef NCP_LANGUAGES

inline constexpr std::size_t kLanguageCount = std::size(kLanguages);

// The locales, without their codesets, that write traditional Chinese.
inline constexpr const char* kTraditionalChineseLocales[] = {"zh_HK", "zh_MO",
                                                             "zh_TW"};

// The languages in which no line ends with a word of one letter.
inline constexpr Language kWithOneLetterWords[] = {
    Language::kCzech, Language::kPolish, Language::kRussian};

}  // namespace NCPStrings
