// The choice of language.
#pragma once

#include "strings/localized_string_manager.h"

// Speaks the language of the user's message locale: the first of LC_ALL,
// LC_MESSAGES and LANG that is set and not empty. Chosen on first use and then
// kept. A locale that is not installed or has no translation here gets English.
// LANGUAGE, which gettext(3) reads, is not.
class StringManager : public LocalizedStringManager {
 public:
  // Looks at nothing yet.
  StringManager() = default;
  // The first call sets the process's message locale from the environment.
  int GetCurrentSystemLanguageID() override;

 private:
  int language_ = -1;
};

// The language that a locale name such as "pt_BR.UTF-8" chooses; null, what
// setlocale(3) returns for a locale it does not have, chooses English.
[[nodiscard]] int LanguageOfLocale(const char* locale_name);
