#include "strings/string_manager.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstring>
#include <string>

#include "strings/string_table.h"

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

// Texts in a language of the test's choice.
class Speaker : public LocalizedStringManager {
 public:
  explicit Speaker(int language) : language_(language) {}
  int GetCurrentSystemLanguageID() override { return language_; }

 private:
  int language_;
};

TEST(Language, IsChosenByTheLocaleName) {
  const struct {
    const char* locale;
    int language;
  } cases[] = {
      {nullptr, 0},
      {"", 0},
      {"C", 0},
      {"POSIX", 0},
      {"C.UTF-8", 0},
      {"en_US.UTF-8", 0},
      {"cs_CZ.UTF-8", 1},
      {"de_DE.UTF-8", 2},
      {"de_AT@euro", 2},
      {"es_419", 3},
      {"fr", 4},
      {"it_IT", 5},
      {"ja_JP.eucJP", 6},
      {"ko_KR", 7},
      {"nl_BE", 8},
      {"pl_PL", 9},
      {"pt_BR.UTF-8", 10},
      {"pt_PT", 10},
      {"ru_RU.KOI8-R", 11},
      {"sv_FI", 12},
      {"tr_TR.UTF-8", 13},
      {"zh_CN.UTF-8", 14},
      {"zh_SG.UTF-8", 14},
      {"zh", 14},
      {"zh_TW@stroke", 14},
      {"zh_HK.UTF-8", 15},
      {"zh_MO.UTF-8", 15},
      {"zh_TW", 15},
      {"zh_TW.Big5_X", 15},
      {"de_DE.ISO_8859-1", 0},
      {"de.UTF-8", 0},
      {"DE_de", 0},
      {"deu_DE", 0},
      {"xx_YY", 0},
      {"_", 0},
      {"nb_NO.UTF-8", 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.locale ? c.locale : "none");
    locale_name = c.locale;
    EXPECT_EQ(StringManager().GetCurrentSystemLanguageID(), c.language);
  }
}

TEST(Language, IsAskedForOnceAManagerAndNotBeforeItIsNeeded) {
  questions = 0;
  StringManager manager;
  EXPECT_EQ(manager.GetString(11016), nullptr);
  locale_name = "de_DE";
  EXPECT_STREQ(manager.GetString(21200), Speaker(2).GetString(21200));
  locale_name = "fr_FR";
  EXPECT_EQ(manager.GetCurrentSystemLanguageID(), 2);
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(StringManager().GetCurrentSystemLanguageID(), 4);
}

TEST(Texts, AreFoundByTheirIdsOnly) {
  const struct {
    int id;
    const char* text;
  } cases[] = {
      {11000, "OK"},
      {21201, "%d bytes"},
      {11005, "Add\xE2\x80\xA6"},
      {92003, "Add Peer-assisted Networking Setting by Site"},
      {91001, "Example: www.example.com, example.com"},
      {10999, nullptr},
      {11016, nullptr},
      {13010, nullptr},
      {92004, nullptr},
      {0, nullptr},
      {-1, nullptr},
      {-2147483647 - 1, nullptr},
      {2147483647, nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id);
    EXPECT_STREQ(Speaker(0).GetString(c.id), c.text);
  }
}

TEST(Texts, AreThereInEveryLanguage) {
  int id = 0;
  for (const auto& [next, row] : NCPStrings::NCPStringsMappingTable) {
    ASSERT_LT(id, static_cast<int>(next)) << "ascending";
    id = static_cast<int>(next);
    for (int language = 0; language < 16; ++language) {
      const char* text = Speaker(language).GetString(id);
      ASSERT_NE(text, nullptr) << id;
      EXPECT_NE(*text, '\0') << id << " in " << language;
    }
  }
}

TEST(Texts, HoldTheAddressesOfTheLanguage) {
  const std::string host = "www.tessary.example/go/";
  const char* const suffixes[] = {"en", "cz", "de", "es", "fr", "it",
                                  "jp", "kr", "nl", "pl", "br", "ru",
                                  "se", "tr", "cn", "tw"};
  const char* const topics[] = {
      "privacy_controls",  "trusted_locations", "peer_assisted_networking",
      "protected_content", "private_browsing",  "storage",
      "camera_and_mic",    "playback",          "advanced"};
  for (int language = 0; language < 16; ++language) {
    const std::string suffix = suffixes[language];
    int id = 13000;
    for (const char* topic : topics) {
      EXPECT_EQ(Speaker(language).GetString(id++),
                "http://" + host + "learn_cp_settings_" + topic + "_" + suffix);
    }
    EXPECT_EQ(Speaker(language).GetString(id),
              "https://" + host + "corvane-player-updates" +
                  (language ? "-" + suffix : ""));
  }
}

}  // namespace
