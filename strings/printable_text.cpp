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

// Only letters, digits and signs of ASCII, which show as they are, as in nearly
// every name.
bool IsPlain(std::string_view text) {
  return std::ranges::all_of(
      text, [](char c) { return c >= ' ' && c <= '~' && c != '\\'; });
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

// In bytes, of the first characters of a well-formed text.
std::size_t SizeOfStart(std::string_view text, std::size_t characters) {
  std::size_t size = 0;
  while (characters-- > 0) {
    size += NCPStrings::SequenceLength(text.substr(size));
  }
  return size;
}

}  // namespace

std::string Printable(std::string_view bytes) {
  if (IsPlain(bytes)) return std::string(bytes);
  std::string text;
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    const std::string_view sequence =
        bytes.substr(0, std::max<std::size_t>(size, 1));
    if (sequence == "\\") {
      text += "\\\\";
    } else if (size > 0 && !IsInvisible(sequence)) {
      text += sequence;
    } else {
      text += Escaped(sequence);
    }
    bytes.remove_prefix(sequence.size());
  }
  return text;
}

std::string PrintableExcerpt(std::string_view bytes, std::size_t longest) {
  // Bytes farther from both ends are in the middle.
  const std::size_t margin = 4 * longest;
  std::string ends(bytes.substr(0, margin));
  if (bytes.size() > margin) {
    ends += bytes.substr(std::max(margin, bytes.size() - margin));
  }
  std::string text = Printable(ends);
  const std::size_t length = u8_mbsnlen(Bytes(text), text.size());
  if (length <= longest) return text;
  const std::size_t half = longest / 2;
  return text.substr(0, SizeOfStart(text, half)) + "…" +
         text.substr(SizeOfStart(text, length - half));
}

int DisplayWidth(std::string_view text) {
  if (IsPlain(text)) return static_cast<int>(text.size());
  return u8_width(Bytes(text), text.size(), "UTF-8");
}
