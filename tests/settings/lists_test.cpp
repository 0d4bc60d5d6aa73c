#include <gmock/gmock.h>

#include "settings/string_vector.h"
#include "tests/support/settings_image.h"

namespace {

using image::NamesOf;
using SASM::SimpleString;
using SASM::StringVector;
using testing::ElementsAre;

int Sign(int value) { return (value > 0) - (value < 0); }

StringVector* Fill(StringVector* list, std::initializer_list<const char*> all) {
  for (const SimpleString text : all) list->addElement(&text);
  return list;
}

TEST(SimpleString, AppendsToItselfAndPastNull) {
  SimpleString text("ab");
  EXPECT_TRUE(text.AppendString(nullptr));
  EXPECT_TRUE(text.AppendString(text.c_str()));
  EXPECT_STREQ(text.c_str(), "abab");
  const SimpleString& same = text;
  text = same;
  EXPECT_STREQ(text.c_str(), "abab");
  EXPECT_STREQ(SimpleString(nullptr).c_str(), "");
}

TEST(SimpleString, WithoutTextIsNoPathAndNoKey) {
  SimpleString none = SimpleString::WithoutText();
  EXPECT_FALSE(none.AppendString("x"));
  EXPECT_EQ(none.c_str(), nullptr);
  EXPECT_FALSE(none == SimpleString::WithoutText());
  EXPECT_FALSE(none == "");
  EXPECT_EQ(SimpleString(none).c_str(), nullptr);
  none = SimpleString("again");
  EXPECT_STREQ(none.c_str(), "again");
}

TEST(StringVector, GrowsByDoublingAndKeepsTheOrder) {
  const struct {
    int added;
    unsigned int capacity;
  } cases[] = {{0, 10}, {10, 10}, {11, 20}, {20, 20}, {21, 40}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.added);
    StringVector list;
    std::vector<std::string> expected;
    for (int i = 0; i < c.added; ++i) {
      expected.push_back(std::to_string(i));
      const SimpleString text(expected.back().c_str());
      EXPECT_TRUE(list.addElement(&text));
    }
    EXPECT_EQ(list.capacity, c.capacity);
    EXPECT_EQ(NamesOf(list), expected);
  }
}

TEST(StringVector, RemovesByIndexAndByPredicate) {
  StringVector list;
  Fill(&list, {"a", "b", "c"})->removeElementAtIndex(3);
  EXPECT_THAT(NamesOf(list), ElementsAre("a", "b", "c"));
  list.removeElementAtIndex(0);
  EXPECT_THAT(NamesOf(list), ElementsAre("b", "c"));
  list.removeElementAtIndex(1);
  EXPECT_THAT(NamesOf(list), ElementsAre("b"));

  Fill(&list, {"x", "c", "x", "x", "d"});
  std::string asked;
  list.removeElementsIf([&](const void* element) {
    const auto& text = *static_cast<const SimpleString*>(element);
    asked += text.c_str();
    return text == "x";
  });
  EXPECT_EQ(asked, "dxxcxb") << "from the last to the first";
  EXPECT_THAT(NamesOf(list), ElementsAre("b", "c", "d"));
}

TEST(NaturalOrder, PutsNumbersByValueAndDigitsAfterLetters) {
  const struct {
    const char* a;
    const char* b;
    int sign;
  } cases[] = {
      {"9", "10", -1},
      {"007", "7", 0},
      {"10b", "10a", 0},
      {"a1", "a2", -1},
      {"ab", "ab1", -1},
      {"b", "C", -1},
      {"x9", "xz", +1},
      {"Ab", "aC", 0},
      {"\x80", "a", -1},
      {"a", "a\xC3", +1},
      {"", "", 0},
      {"", "a", -1},
      {"", "\xFF", +1},
      {"9", "a", +1},
      {"-9", "-10", +1},
      {"Z", "[", +1},
      {"@", "A", -1},
      {"\xC3\x84", "\xC3\xA4", -1},
      {"2", "4294967297", +1},            // which is 1 in 32 bits
      {"0", "99999999999999999999", +1},  // the largest number, so -1
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " ? " + c.b);
    EXPECT_EQ(Sign(CompareNaturally(c.a, c.b)), c.sign);
    EXPECT_EQ(Sign(CompareNaturally(c.b, c.a)), -c.sign);
  }
}

TEST(NaturalOrder, SortsAList) {
  SortableStringVector list;
  Fill(&list, {"a1", "10", "B", "aZ", "2", "a", "\xC3\xA4"});
  list.Sort();
  EXPECT_THAT(NamesOf(list),
              ElementsAre("\xC3\xA4", "a", "aZ", "a1", "B", "2", "10"));
}

}  // namespace
