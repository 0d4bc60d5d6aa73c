// Text that is safe to print on a terminal, whatever a file holds.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/setting_data_item.h"

// A text in the user's language; empty when there is none with that id.
[[nodiscard]] std::string TextOf(int id);

// The shortest decimal that reads back as the same number; "nan", "inf" or
// "-inf" for others.
[[nodiscard]] std::string Decimal(double number);

// "0.5", "true", "\"text\"", of which at most `longest` characters are shown,
// "a list of 2".
[[nodiscard]] std::string ValueText(const SASM::SettingDataItem& item,
                                    std::size_t longest);

// Prints rows of cells in aligned columns.
class TextTable {
 public:
  using Row = std::vector<std::string>;

  // All rows have the same number of cells.
  void Add(Row row) { rows_.push_back(std::move(row)); }
  // Prints on standard output.
  void Print() const;

 private:
  std::vector<Row> rows_;
};
