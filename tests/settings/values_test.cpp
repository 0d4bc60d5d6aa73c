#include <gmock/gmock.h>

#include <memory>

#include "settings/setting_data_item.h"
#include "settings/string_vector.h"
#include "tests/support/settings_image.h"

namespace {

using image::Describe;
using image::NamesOf;
using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SimpleString;
using SASM::StringVector;
using testing::ElementsAre;

int Sign(int value) { return (value > 0) - (value < 0); }

void Fill(StringVector* list, std::initializer_list<const char*> all) {
  for (const SimpleString text : all) list->addElement(&text);
}

TEST(StringVector, RemovesByIndexAndByPredicate) {
  StringVector list;
  Fill(&list, {"a", "b", "c"});
  list.removeElementAtIndex(3);
  EXPECT_THAT(NamesOf(list), ElementsAre("a", "b", "c"));
  list.removeElementAtIndex(0);
  EXPECT_THAT(NamesOf(list), ElementsAre("b", "c"));

  Fill(&list, {"x", "c", "x", "x", "d"});
  list.removeElementsIf([](const void* element) {
    return *static_cast<const SimpleString*>(element) == "x";
  });
  EXPECT_THAT(NamesOf(list), ElementsAre("b", "c", "c", "d"));
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
      {"", "", 0},
      {"", "a", -1},
      {"", "\xFF", +1},
      {"-9", "-10", +1},
      {"Z", "[", +1},
      {"@", "A", -1},
      {"\xC3\x84", "\xC3\xA4", -1},
      {"2", "4294967297", +1},           // which is 1 in 32 bits
      {"0", "99999999999999999999", +1}  // the largest number, so -1
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " ? " + c.b);
    EXPECT_EQ(Sign(CompareNaturally(c.a, c.b)), c.sign);
    EXPECT_EQ(Sign(CompareNaturally(c.b, c.a)), -c.sign);
  }
}

TEST(NaturalOrder, SortsAListThatHasGrown) {
  SortableStringVector list;
  Fill(&list,
       {"a1", "10", "B", "aZ", "2", "a", "\xC3\xA4", "3", "4", "5", "6"});
  list.Sort();
  EXPECT_THAT(NamesOf(list), ElementsAre("\xC3\xA4", "a", "aZ", "a1", "B", "2",
                                         "3", "4", "5", "6", "10"));
}

SettingDataItem Array(unsigned int count) {
  auto* array = new SDIVector;
  for (unsigned int i = 0; i < count; ++i) {
    const SettingDataItem element(std::to_string(i).c_str(),
                                  new SimpleString("text"));
    array->addElement(&element);
  }
  return SettingDataItem("array", array);
}

TEST(SettingDataItem, SharesNothingWithItsCopy) {
  auto original = std::make_unique<SettingDataItem>(Array(25));
  const std::string before = Describe(*original);
  SettingDataItem copy(*original);
  SDIVector* array = copy.value.array;
  array->removeElementAtIndex(0);
  array->At(0)->name = SimpleString("changed");
  EXPECT_TRUE(array->ReplaceElementAtIndex(1, *array->At(1))) << "by itself";
  EXPECT_EQ(Describe(*original), before);
  original.reset();
  EXPECT_EQ(array->count, 24u);
  EXPECT_STREQ(array->At(23)->value.string->c_str(), "text");
}

}  // namespace
