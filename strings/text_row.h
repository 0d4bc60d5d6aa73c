// One row of a language file.
#pragma once

namespace NCPStrings {

// A text under the id by which code asks for it. UTF-8, NUL-terminated; lives
// as long as the program.
struct TextRow {
  unsigned int id;
  const char* text;
};

}  // namespace NCPStrings
