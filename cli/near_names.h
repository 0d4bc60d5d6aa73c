// What a user may have meant by a name that is unknown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// "; did you mean A, B?" with the sites that differ from the name in case
// only or are above or below it, or nothing.
[[nodiscard]] std::string SuggestSites(std::string_view name,
                                       const std::vector<std::string>& sites);
