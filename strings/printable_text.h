// Bytes of files as text that is safe to show.
#pragma once

#include <string>
#include <string_view>

// The text with every byte that is not visible as "\xNN": invisible
// characters, and bytes that are not UTF-8. A backslash is doubled.
[[nodiscard]] std::string Printable(std::string_view bytes);

// The same, with an ellipsis for the middle where there would be more than
// `longest` characters.
[[nodiscard]] std::string PrintableExcerpt(std::string_view bytes,
                                           std::size_t longest);

// The columns that a printable text takes in a terminal.
[[nodiscard]] int DisplayWidth(std::string_view text);
