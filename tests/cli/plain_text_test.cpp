#include "cli/plain_text.h"

#include <gtest/gtest.h>

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
