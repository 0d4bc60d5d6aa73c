#include <gtest/gtest.h>

#include "settings/string_vector.h"

namespace {

int Sign(int value) { return (value > 0) - (value < 0); }

TEST(NaturalOrder, PutsNumbersByValueAndDigitsAfterLetters) {
  const std::tuple<const char*, const char*, int> cases[] = {
      {"9", "10", -1},
      {"007", "7", 0},
      {"10b", "10a", 0},
      {"ab", "ab1", -1},
      {"b", "C", -1},
      {"x9", "xz", +1},
      {"Ab", "aC", 0},
      {"\x80", "a", -1},
      {"", "\xFF", +1},
      {"-9", "-10", +1},
      {"@", "A", -1},
      // Numbers are cut to 32 bits: to 1, and the largest of all to -1.
      {"2", "4294967297", +1},
      {"0", "99999999999999999999", +1}};
  for (const auto& [a, b, sign] : cases) {
    SCOPED_TRACE(std::string(a) + " ? " + b);
    EXPECT_EQ(Sign(CompareNaturally(a, b)), sign);
    EXPECT_EQ(Sign(CompareNaturally(b, a)), -sign);
  }
}

}  // namespace
