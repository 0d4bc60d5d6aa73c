// One language, whatever the locale is.
#pragma once

#include "strings/languages.h"
#include "strings/localized_string_manager.h"

class FixedLanguage : public LocalizedStringManager {
 public:
  explicit FixedLanguage(NCPStrings::Language language) : language_(language) {}
  int GetCurrentSystemLanguageID() override {
    return static_cast<int>(language_);
  }

 private:
  NCPStrings::Language language_;
};
