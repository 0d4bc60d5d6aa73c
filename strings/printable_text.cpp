#include "strings/printable_text.h"

#include <unictype.h>
#include <unistr.h>
#include <uniwidth.h>

#include <algorithm>

#include "strings/utf8.h"

namespace {

const std::uint8_t* Bytes(std::string_view text) {
  return reinterpret_cast<const std::uint8_t*>(text.data());
}

// Everything that a terminal or a window would obey rather than show, and
// whatever has no shape of its own.
bool IsInvisible(ucs4_t character) {
  return uc_is_cntrl(character) || uc_is_property_bidi_control(character) ||
         uc_is_property_default_ignorable_code_point(character);
}

// `sequence` is one character, well-formed.
bool IsInvisible(std::string_view sequence) {
  ucs4_t character = 0;
  u8_mbtouc_unsafe(&character, Bytes(sequence), sequence.size());
  return IsInvisible(character);
}

std::string Escaped(std::string_view bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
  return text;
}

// What is shown for one character, or for a byte that begins none.
struct Shown {
  std::string text;
  std::size_t length;  // characters
};

Shown Show(std::string_view sequence, bool is_character) {
  if (sequence == "\\") return {"\\\\", 2};
  if (is_character && !IsInvisible(sequence)) return {std::string(sequence), 1};
  const std::string text = Escaped(sequence);
  return {text, text.size()};
}

}  // namespace

std::string Printable(std::string_view bytes, std::size_t longest) {
  std::string text;
  std::size_t length = 0;
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    const std::string_view sequence =
        bytes.substr(0, std::max<std::size_t>(size, 1));
    const Shown shown = Show(sequence, size > 0);
    length += shown.length;
    if (length > longest) return text + "…";
    text += shown.text;
    bytes.remove_prefix(sequence.size());
  }
  return text;
}

int DisplayWidth(std::string_view text) {
  return u8_width(Bytes(text), text.size(), "UTF-8");
}
