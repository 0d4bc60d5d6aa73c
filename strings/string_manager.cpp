#include "strings/string_manager.h"

#include <algorithm>
#include <clocale>
#include <iterator>
#include <string_view>

#include "strings/languages.h"

int StringManager::GetCurrentSystemLanguageID() {
  if (language_ < 0) {
    language_ = LanguageOfLocale(std::setlocale(LC_MESSAGES, ""));
  }
  return language_;
}

int LanguageOfLocale(const char* locale_name) {
  using namespace NCPStrings;
  const std::string_view name = locale_name ? locale_name : "en";
  // Up to the last "_": a "_" in the codeset, as in "de_DE.ISO_8859-1", makes
  // it no language of the table.
  const std::string_view language_code = name.substr(0, name.rfind('_'));
  const std::string_view locale_code = name.substr(0, name.find('.'));
  if (std::ranges::count(kTraditionalChineseLocales, locale_code) > 0) {
    return static_cast<int>(Language::kTraditionalChinese);
  }
  const auto* traits =
      std::ranges::find(kLanguages, language_code, &LanguageTraits::code);
  return traits == std::end(kLanguages) ? 0
                                        : static_cast<int>(traits->language);
}
