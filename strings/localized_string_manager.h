// The texts of the panel.
#pragma once

// Gives texts by their ids. Which language, the derived manager decides.
class LocalizedStringManager {
 public:
  virtual ~LocalizedStringManager() = default;

  // An index of NCPStrings::Language.
  virtual int GetCurrentSystemLanguageID() = 0;

  // The text under `id` in the current language: a constant UTF-8 text that
  // lives as long as the program. Null when there is no such id.
  [[nodiscard]] const char* GetString(int id);
};
