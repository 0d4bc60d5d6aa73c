#include "cli/plain_text.h"

#include <gtest/gtest.h>

TEST(Printable, LeavesNothingThatATerminalWouldObey) {
  const struct {
    std::string bytes;
    const char* text;
  } cases[] = {
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

TEST(TextTable, LetsOneLongCellPushOnlyItsOwnRow) {
  const std::string longest(70000, 'x');
  TextTable table;
  table.Add({longest, "1"});
  table.Add({"e\u0301", "2"});
  testing::internal::CaptureStdout();
  table.Print();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            longest + "  1\ne\u0301  2\n");
}
