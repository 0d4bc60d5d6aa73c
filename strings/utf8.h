// Well-formed UTF-8.
#pragma once

#include <string_view>

namespace NCPStrings {

// The sequences of more than one byte (Unicode Standard, table 3-7): from the
// first byte follow the length and the range of the second byte; the others
// are 0x80 to 0xBF.
struct SequenceForm {
  unsigned char first_low;
  unsigned char first_high;
  unsigned char length;
  unsigned char second_low;
  unsigned char second_high;
};
inline constexpr SequenceForm kSequenceForms[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF}, {0xED, 0xED, 3, 0x80, 0x9F},
    {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

constexpr bool HasForm(std::string_view text, const SequenceForm& form) {
  if (text.size() < form.length) return false;
  for (unsigned int i = 1; i < form.length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool is_second = i == 1;
    if (byte < (is_second ? form.second_low : 0x80)) return false;
    if (byte > (is_second ? form.second_high : 0xBF)) return false;
  }
  return true;
}

// The length of the UTF-8 sequence that `text`, which is not empty, begins
// with; 0 when it begins with none.
constexpr std::size_t SequenceLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return 1;
  for (const SequenceForm& form : kSequenceForms) {
    if (first >= form.first_low && first <= form.first_high) {
      return HasForm(text, form) ? form.length : 0;
    }
  }
  return 0;
}

}  // namespace NCPStrings
