// Well-formed UTF-8.
#pragma once

#include <string_view>

namespace NCPStrings {

// The length of the UTF-8 sequence that `text` begins with; 0 when it begins
// with none (Unicode Standard, table 3-7).
constexpr std::size_t SequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
  };
  const auto continues = [&](std::size_t from, std::size_t to) {
    for (std::size_t i = from; i < to; ++i) {
      if (byte(i) < 0x80 || byte(i) > 0xBF) return false;
    }
    return true;
  };
  const unsigned int first = byte(0);
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return continues(1, 2) ? 2 : 0;
  if (first >= 0xE0 && first <= 0xEF) {
    const bool overlong = first == 0xE0 && byte(1) < 0xA0;
    const bool surrogate = first == 0xED && byte(1) > 0x9F;
    return continues(1, 3) && !overlong && !surrogate ? 3 : 0;
  }
  if (first < 0xF0 || first > 0xF4 || !continues(1, 4)) return 0;
  const bool overlong = first == 0xF0 && byte(1) < 0x90;
  const bool too_high = first == 0xF4 && byte(1) > 0x8F;
  return !overlong && !too_high ? 4 : 0;
}

}  // namespace NCPStrings
