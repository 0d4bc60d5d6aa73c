#include "cli/near_names.h"

#include <algorithm>

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

std::string SuggestSites(std::string_view name,
                         const std::vector<std::string>& sites) {
  const std::string wanted = InLowerCase(name);
  if (wanted.empty()) return "";
  std::string text;
  int count = 0;
  for (const std::string& site : sites) {
    const std::string lower = InLowerCase(site);
    if (lower != wanted && !IsBelow(lower, wanted) && !IsBelow(wanted, lower)) {
      continue;
    }
    if (++count > kMostSuggestions) break;
    text += (text.empty() ? "; did you mean " : ", ") + Printable(site);
  }
  return text.empty() ? text : text + "?";
}
