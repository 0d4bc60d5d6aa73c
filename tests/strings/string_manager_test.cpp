#include "strings/string_manager.h"

#include <gtest/gtest.h>

#include <clocale>
#include <string>
#include <vector>

#include "strings/fixed_language.h"
#include "strings/languages.h"

namespace {

// What setlocale says next, and how often it was asked.
const char* locale_name = "C";
int questions = 0;

}  // namespace

// Stands before that of the C library, which lacks most locales.
extern "C" char* setlocale(int category, const char* name) noexcept {
  EXPECT_EQ(category, LC_MESSAGES);
  EXPECT_STREQ(name, "");
  ++questions;
  return const_cast<char*>(locale_name);
}

namespace {

using NCPStrings::Language;

// Texts in a language of the test's choice.
const char* TextOf(int id, Language language = Language::kEnglish) {
  return FixedLanguage(language).GetString(id);
}

TEST(Language, IsChosenByTheLocaleName) {
  const std::pair<int, std::vector<const char*>> cases[] = {
      {0, {nullptr, "", "C", "en_US.UTF-8", "de_DE.ISO_8859-1", "de.UTF-8"}},
      {0, {"deu_DE", "DE_de", "nb_NO.UTF-8", "_"}},
      {2, {"de_DE.UTF-8", "de_AT@euro"}},
      {4, {"fr"}},
      {14, {"zh_CN.UTF-8", "zh_SG.UTF-8", "zh", "zh_TW@stroke"}},
      {15, {"zh_HK.UTF-8", "zh_MO.UTF-8", "zh_TW", "zh_TW.Big5_X"}},
  };
  for (const auto& [language, locales] : cases) {
    for (const char* locale : locales) {
      SCOPED_TRACE(locale ? locale : "none");
      locale_name = locale;
      EXPECT_EQ(StringManager().GetCurrentSystemLanguageID(), language);
    }
  }
  for (const auto& row : NCPStrings::kLanguages) {
    EXPECT_EQ(LanguageOfLocale(row.locale), static_cast<int>(row.language));
  }
}

TEST(Language, IsAskedForOnceAManagerAndNotBeforeItIsNeeded) {
  questions = 0;
  StringManager manager;
  locale_name = "de_DE";
  EXPECT_STREQ(manager.GetString(21200), TextOf(21200, Language::kGerman));
  locale_name = "fr_FR";
  EXPECT_EQ(manager.GetCurrentSystemLanguageID(), 2);
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(StringManager().GetCurrentSystemLanguageID(), 4);
}

TEST(Texts, AreFoundByTheirIdsOnly) {
  EXPECT_STREQ(TextOf(11000), "OK");
  for (const int id : {10999, 11016, 92004, 0, -1, -2147483647 - 1}) {
    EXPECT_EQ(TextOf(id), nullptr) << id;
  }
}

TEST(Texts, HoldTheAddressesOfTheLanguage) {
  const std::string site = "www.tessary.example/go/";
  const std::string help = "http://" + site + "learn_cp_settings_";
  const std::string updates = "https://" + site + "corvane-player-updates";
  EXPECT_EQ(TextOf(13000), help + "privacy_controls_en");
  EXPECT_EQ(TextOf(13008, Language::kTraditionalChinese), help + "advanced_tw");
  EXPECT_EQ(TextOf(13009), updates);
  EXPECT_EQ(TextOf(13009, Language::kPortuguese), updates + "-br");
}

}  // namespace
