// Texts with a placeholder.
#pragma once

#include <string>
#include <string_view>

// `format` with its first "%s" replaced by `argument`; unchanged without one.
// Nothing else in `format` has a meaning.
[[nodiscard]] std::string FillPlaceholder(std::string format,
                                          std::string_view argument);
