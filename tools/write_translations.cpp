// Writes a file in all languages of the program, from a template whose texts
// are references to the table of texts.
//
// Usage: write_translations <template >output
//
// "{21000}" stands for the text with that id. A line that holds such
// references is written once for every language, and says which: an element
// of XML in its attribute xml:lang, a key of a desktop entry in brackets
// behind it. Other lines are copied.
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "strings/fixed_language.h"
#include "strings/languages.h"

namespace {

// A language and a locale that speaks it; the default language has none.
struct Translation {
  NCPStrings::Language language;
  std::string locale;
};

std::vector<Translation> AllTranslations() {
  using NCPStrings::Language;
  std::vector<Translation> all;
  for (const auto& traits : NCPStrings::kLanguages) {
    if (traits.language == Language::kEnglish) {
      all.push_back({traits.language, ""});
    } else if (traits.language != Language::kTraditionalChinese) {
      all.push_back({traits.language, traits.code});
    }
  }
  // The other kind of Chinese has the code itself.
  for (const char* locale : NCPStrings::kTraditionalChineseLocales) {
    all.push_back({Language::kTraditionalChinese, locale});
  }
  return all;
}

// The id of the text that a reference at `start` stands for, and where the
// reference ends; 0 when none is there.
int ReferenceAt(const std::string& line, std::size_t start, std::size_t* end) {
  if (line[start] != '{') return 0;
  const std::size_t brace = line.find_first_not_of("0123456789", start + 1);
  if (brace == line.npos || line[brace] != '}') return 0;
  int id = 0;
  std::from_chars(&line[start + 1], &line[brace], id);
  if (id != 0) *end = brace + 1;
  return id;
}

// The line with its references filled in. `*has_references` says whether it
// has any.
std::string Fill(const std::string& line, NCPStrings::Language language,
                 bool* has_references) {
  FixedLanguage strings(language);
  std::string filled;
  *has_references = false;
  for (std::size_t next = 0; next < line.size();) {
    const int id = ReferenceAt(line, next, &next);
    if (id == 0) {
      filled += line[next++];
      continue;
    }
    const char* text = strings.GetString(id);
    if (!text) {
      std::cerr << "There is no text " << id << ".\n";
      std::exit(EXIT_FAILURE);
    }
    filled += text;
    *has_references = true;
  }
  return filled;
}

std::string Marked(std::string line, std::string locale) {
  if (locale.empty()) return line;
  const std::size_t tag = line.find_first_not_of(' ');
  if (line[tag] != '<') {
    return line.insert(line.find('='), "[" + locale + "]");
  }
  // XML names languages by RFC 5646.
  for (char& c : locale) c = c == '_' ? '-' : c;
  return line.insert(line.find_first_of(" >", tag),
                     " xml:lang=\"" + locale + "\"");
}

}  // namespace

int main() {
  const std::vector<Translation> translations = AllTranslations();
  for (std::string line; std::getline(std::cin, line);) {
    for (const Translation& translation : translations) {
      bool has_references = false;
      const std::string filled =
          Fill(line, translation.language, &has_references);
      std::cout << Marked(filled, has_references ? translation.locale : "")
                << '\n';
      if (!has_references) break;
    }
  }
  return std::cout.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
