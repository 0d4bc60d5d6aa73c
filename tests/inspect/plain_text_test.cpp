#include "inspect/plain_text.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <limits>

TEST(Printable, LeavesNothingThatATerminalWouldObey) {
  const struct {
    std::string bytes;
    const char* text;
  } cases[] = {
      {"", ""},
      {"www.example.com", "www.example.com"},
      {"bücher 日本 😀", "bücher 日本 😀"},
      {"a\\b", "a\\\\b"},
      {"\x1B[2J\r\n\t\x7F", "\\x1B[2J\\x0D\\x0A\\x09\\x7F"},
      {"\xC2\x9B", "\\xC2\\x9B"},  // control sequence, 8 bits
      {"a\u202Egpj.exe", "a\\xE2\\x80\\xAEgpj.exe"},  // right to left
      {"\u200B\uFEFF", "\\xE2\\x80\\x8B\\xEF\\xBB\\xBF"},
      {"\xFF\xC0\x80", "\\xFF\\xC0\\x80"},
      {"\xED\xA0\x80", "\\xED\\xA0\\x80"},  // half a surrogate pair
      {"\xE6\x97", "\\xE6\\x97"},           // cut short
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(Printable(c.bytes), c.text);
  }
}

TEST(Decimal, ReadsBackAsTheSameNumber) {
  using Limits = std::numeric_limits<double>;
  for (const double number :
       {0.0, -0.0, 100.0, 0.1, 1e22, Limits::max(), Limits::denorm_min()}) {
    const std::string text = Decimal(number);
    SCOPED_TRACE(text);
    EXPECT_EQ(std::strtod(text.c_str(), nullptr), number);
    EXPECT_EQ(text[0] == '-', std::signbit(number));
  }
  EXPECT_EQ(Decimal(100), "100");
  EXPECT_EQ(Decimal(Limits::infinity()), "inf");
}

TEST(TextTable, KeepsColumnsInLine) {
  TextTable table;
  table.Add({"ab", "x"});
  table.Add({"日本", "y"});
  table.Add({"é", "z"});
  table.Add({"e\u0301", "z"});
  table.Add({"한글", "z"});
  testing::internal::CaptureStdout();
  table.Print();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "ab    x\n"
            "日本  y\n"
            "é     z\n"
            "e\u0301     z\n"
            "한글  z\n");
}

TEST(TextTable, LetsOneLongCellPushOnlyItsOwnRow) {
  TextTable table;
  const std::string longest(70000, 'x');
  table.Add({longest, "1"});
  table.Add({"ab", "2"});
  testing::internal::CaptureStdout();
  table.Print();
  EXPECT_EQ(testing::internal::GetCapturedStdout(), longest + "  1\nab  2\n");
}
