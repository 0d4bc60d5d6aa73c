#include "cli/plain_text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "strings/printable_text.h"

namespace {

// A longer cell does not widen its column: only its own row is out of line.
constexpr int kWidestColumn = 48;

}  // namespace

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
