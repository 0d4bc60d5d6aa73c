// Text that is safe to print on a terminal, whatever a file holds.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The shortest decimal that reads back as the same number; "nan", "inf" or
// "-inf" for others.
[[nodiscard]] std::string Decimal(double number);

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
