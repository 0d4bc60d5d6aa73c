#include "strings/printable_text.h"

#include <gtest/gtest.h>

TEST(Printable, LeavesNothingInvisible) {
  const std::pair<std::string, const char*> cases[] = {
      {"bücher 日本 😀", "bücher 日本 😀"},
      {"a\\b", "a\\\\b"},
      {"\x1B[2J\r\n\t\x7F", "\\x1B[2J\\x0D\\x0A\\x09\\x7F"},
      {"\xC2\x9B", "\\xC2\\x9B"},  // control sequence, 8 bits
      {"a\u202Egpj.exe", "a\\xE2\\x80\\xAEgpj.exe"},  // right to left
      {"\u200B\uFEFF", "\\xE2\\x80\\x8B\\xEF\\xBB\\xBF"},
      {"\u00AD\u3164\u2029", "\\xC2\\xAD\\xE3\\x85\\xA4\\xE2\\x80\\xA9"},
      {"\U000E0041\u2066", "\\xF3\\xA0\\x81\\x81\\xE2\\x81\\xA6"},
      {"\xFF\xC0\x80", "\\xFF\\xC0\\x80"},
      {"\xED\xA0\x80", "\\xED\\xA0\\x80"},  // half a surrogate pair
      {"\xE6\x97", "\\xE6\\x97"},           // cut short
  };
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(Printable(bytes), text);
  }
}

TEST(PrintableExcerpt, LeavesOutTheMiddle) {
  const std::string huge(65535, '\t');
  const std::tuple<std::string, std::size_t, const char*> cases[] = {
      {"日本語字", 4, "日本語字"},
      {"日本-語字", 4, "日本…語字"},
      {"a\t\xE9z", 6, "a\\x…E9z"},
      {"日本" + huge + "語字", 4, "日本…語字"},
      {huge, 8, "\\x09…\\x09"}};
  for (const auto& [bytes, longest, text] : cases) {
    EXPECT_EQ(PrintableExcerpt(bytes, longest), text);
  }
}
