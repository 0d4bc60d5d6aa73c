// The sixteen languages.
#pragma once

#include <array>

#include "strings/text_row.h"

namespace NCPStrings {

// The position of a language's block in the text table.
enum class Language : int {
  kEnglish,
  kCzech,
  kGerman,
  kSpanish,
  kFrench,
  kItalian,
  kJapanese,
  kKorean,
  kDutch,
  kPolish,
  kPortuguese,
  kRussian,
  kSwedish,
  kTurkish,
  kSimplifiedChinese,
  kTraditionalChinese,
};

inline constexpr int kLanguageCount = 16;

struct LanguageTraits {
  Language language;
  // The language code of a locale name that chooses it. The default language
  // needs none; the two kinds of Chinese share theirs.
  const char* code;
  // What the maker's web site calls it at the end of an address.
  const char* site_suffix;
};

inline constexpr std::array<LanguageTraits, kLanguageCount> kLanguages = {{
    {Language::kEnglish, "en", "en"},
    {Language::kCzech, "cs", "cz"},
    {Language::kGerman, "de", "de"},
    {Language::kSpanish, "es", "es"},
    {Language::kFrench, "fr", "fr"},
    {Language::kItalian, "it", "it"},
    {Language::kJapanese, "ja", "jp"},
    {Language::kKorean, "ko", "kr"},
    {Language::kDutch, "nl", "nl"},
    {Language::kPolish, "pl", "pl"},
    {Language::kPortuguese, "pt", "br"},
    {Language::kRussian, "ru", "ru"},
    {Language::kSwedish, "sv", "se"},
    {Language::kTurkish, "tr", "tr"},
    {Language::kSimplifiedChinese, "zh", "cn"},
    {Language::kTraditionalChinese, "zh", "tw"},
}};

// The locales, without their codesets, that write traditional Chinese.
inline constexpr const char* kTraditionalChineseLocales[] = {"zh_HK", "zh_MO",
                                                             "zh_TW"};

}  // namespace NCPStrings
