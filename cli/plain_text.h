// Bytes of files as text that is safe to read in a terminal.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The text with everything that is no visible character as "\xNN": control
// characters, the invisible ones that turn the direction of writing, and
// bytes that are no UTF-8. A backslash is doubled.
[[nodiscard]] std::string Printable(std::string_view bytes);

// The shortest decimal that reads back as the same number, or "nan", "inf",
// "-inf".
[[nodiscard]] std::string Decimal(double number);

// Rows of cells, printed with their columns in line.
class TextTable {
 public:
  using Row = std::vector<std::string>;

  // Every row has as many cells as the first.
  void Add(Row row) { rows_.push_back(std::move(row)); }
  // On standard output.
  void Print() const;

 private:
  std::vector<Row> rows_;
};
