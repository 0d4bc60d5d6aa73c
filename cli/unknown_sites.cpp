#include "cli/unknown_sites.h"

#include <algorithm>

#include "cli/error_messages.h"
#include "strings/printable_text.h"

namespace {

constexpr int kMostSuggestions = 5;

std::string InLowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

bool IsBelow(const std::string& site, const std::string& domain) {
  return site.ends_with("." + domain);
}

}  // namespace

void UnknownSites::Report(std::string_view name, std::string_view advice) {
  PrintError(name, "no such site" + Suggestion(name).append(advice));
}

std::string UnknownSites::Suggestion(std::string_view name) {
  const std::string wanted = InLowerCase(name);
  if (wanted.empty()) return "";
  if (!known_) known_ = store_.KnownSites();
  std::string text;
  int count = 0;
  for (const std::string& site : *known_) {
    const std::string lower = InLowerCase(site);
    if (site == name) continue;  // listed, without settings
    if (lower != wanted && !IsBelow(lower, wanted) && !IsBelow(wanted, lower)) {
      continue;
    }
    if (++count > kMostSuggestions) break;
    text += (text.empty() ? "; did you mean " : ", ") + Printable(site);
  }
  return text.empty() ? text : text + "?";
}
