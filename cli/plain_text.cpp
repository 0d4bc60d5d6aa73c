#include "cli/plain_text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <span>

#include "strings/utf8.h"

namespace {

// A longer cell does not widen its column: only its own row is out of line.
constexpr int kWidestColumn = 48;

struct Range {
  char32_t first;
  char32_t last;
};

constexpr Range kInvisible[] = {
    {0x00, 0x1F},     {0x7F, 0x9F},     {0x061C, 0x061C}, {0x200B, 0x200F},
    {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF},
};

// Characters that take two columns (Unicode Standard Annex #11), and none.
// wcwidth(3) would know only the characters of the user's locale.
constexpr Range kWide[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x4DBF},
    {0x4E00, 0xA4CF},   {0xA960, 0xA97C},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},
    {0xFFE0, 0xFFE6},   {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF},
    {0x1F900, 0x1FAFF}, {0x20000, 0x3FFFD},
};
constexpr Range kCombining[] = {
    {0x0300, 0x036F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};

bool IsIn(std::span<const Range> ranges, char32_t character) {
  return std::ranges::any_of(ranges, [character](const Range& range) {
    return range.first <= character && character <= range.last;
  });
}

// `sequence` is one character of well-formed UTF-8.
char32_t Decode(std::string_view sequence) {
  const auto first = static_cast<unsigned char>(sequence[0]);
  if (sequence.size() == 1) return first;
  char32_t character = first & (0x7FU >> sequence.size());
  for (const char c : sequence.substr(1)) {
    character = character << 6 | (static_cast<unsigned char>(c) & 0x3FU);
  }
  return character;
}

void AppendEscaped(std::string_view bytes, std::string* text) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    *text += {'\\', 'x', kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
}

// In columns of a terminal. `text` is well-formed UTF-8.
int DisplayWidth(std::string_view text) {
  int width = 0;
  while (!text.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(text);
    const char32_t character = Decode(text.substr(0, size));
    if (!IsIn(kCombining, character)) width += IsIn(kWide, character) ? 2 : 1;
    text.remove_prefix(size);
  }
  return width;
}

}  // namespace

std::string Printable(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    const std::string_view sequence =
        bytes.substr(0, std::max<std::size_t>(size, 1));
    if (sequence == "\\") {
      text += "\\\\";
    } else if (size > 0 && !IsIn(kInvisible, Decode(sequence))) {
      text += sequence;
    } else {
      AppendEscaped(sequence, &text);
    }
    bytes.remove_prefix(sequence.size());
  }
  return text;
}

std::string Decimal(double number) {
  char digits[32];
  const auto result = std::to_chars(digits, digits + sizeof digits, number);
  return {digits, result.ptr};
}

void TextTable::Print() const {
  std::vector<int> widths;
  for (const Row& row : rows_) {
    widths.resize(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
      const int width = DisplayWidth(row[i]);
      if (width <= kWidestColumn) widths[i] = std::max(widths[i], width);
    }
  }
  for (const Row& row : rows_) {
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
      const int padding = std::max(widths[i] - DisplayWidth(row[i]), 0) + 2;
      std::printf("%s%*s", row[i].c_str(), padding, "");
    }
    std::puts(row.back().c_str());
  }
}
