#include "cli/plain_text.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "strings/printable_text.h"
#include "strings/string_manager.h"

namespace {

// A longer cell does not widen its column: only its own row is out of line.
constexpr int kWidestColumn = 48;

}  // namespace

std::string TextOf(int id) {
  static StringManager strings;
  const char* text = strings.GetString(id);
  return text ? text : "";
}

std::string Decimal(double number) {
  char digits[32];
  const auto result = std::to_chars(digits, digits + sizeof digits, number);
  return {digits, result.ptr};
}

std::string ValueText(const SASM::SettingDataItem& item, std::size_t longest) {
  switch (item.type) {
    case SASM::kSettingsDataTypeDouble:
      return Decimal(item.value.number);
    case SASM::kSettingsDataTypeBool:
      return item.value.boolean ? "true" : "false";
    case SASM::kSettingsDataTypeString:
      return '"' + PrintableExcerpt(item.value.string->c_str(), longest) + '"';
    case SASM::kSettingsDataTypeArray:
      return "a list of " + std::to_string(item.value.array->count);
  }
  return "unknown";
}

void TextTable::Print() const {
  std::vector<int> widest;
  std::vector<int> widths;  // of all cells, row by row
  for (const Row& row : rows_) {
    widest.resize(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
      widths.push_back(DisplayWidth(row[i]));
      if (widths.back() > kWidestColumn) continue;
      widest[i] = std::max(widest[i], widths.back());
    }
  }
  auto width = widths.begin();
  for (const Row& row : rows_) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i, ++width) {
      line += row[i];
      if (i + 1 == row.size()) continue;
      const int padding = std::max(widest[i] - *width, 0) + 2;
      line.append(static_cast<std::size_t>(padding), ' ');
    }
    std::puts(line.c_str());
  }
}
