#include "settings/setting_data_item.h"

#include <gmock/gmock.h>

#include <memory>

#include "tests/support/settings_image.h"

namespace {

using image::Describe;
using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SimpleString;
using testing::ElementsAre;

constexpr auto kNoSuchType = static_cast<SASM::_SettingsDataType>(7);

SettingDataItem Array(unsigned int count) {
  auto* array = new SDIVector;
  for (unsigned int i = 0; i < count; ++i) {
    const SettingDataItem element(std::to_string(i).c_str(),
                                  new SimpleString("text"));
    array->addElement(&element);
  }
  return SettingDataItem("array", array);
}

// One of every type.
std::vector<SettingDataItem> AllKinds() {
  std::vector<SettingDataItem> items;
  items.emplace_back("number", 1.5);
  items.emplace_back("boolean", true);
  items.emplace_back("string", new SimpleString("text"));
  items.push_back(Array(2));
  items.emplace_back("none", kNoSuchType, nullptr);
  return items;
}

TEST(SettingDataItem, CopiesAndAssignsEveryTypeToEveryType) {
  for (const SettingDataItem& from : AllKinds()) {
    for (const SettingDataItem& to : AllKinds()) {
      SCOPED_TRACE(Describe(to) + " becomes " + Describe(from));
      SettingDataItem target(to);
      EXPECT_EQ(Describe(target), Describe(to));
      EXPECT_EQ(Describe(target = from), Describe(from));
      EXPECT_EQ(Describe(target), Describe(from));
      const SettingDataItem& same = target;
      target = same;
      EXPECT_EQ(Describe(target), Describe(from));
      EXPECT_TRUE(target.IsWhole());
    }
  }
}

TEST(SettingDataItem, SharesNothingWithItsCopy) {
  auto original = std::make_unique<SettingDataItem>(Array(25));
  const std::string before = Describe(*original);
  SettingDataItem copy(*original);
  EXPECT_EQ(copy.value.array->capacity, 40u);
  copy.value.array->removeElementAtIndex(0);
  copy.value.array->At(0)->name = SimpleString("changed");
  EXPECT_EQ(Describe(*original), before);
  original.reset();
  EXPECT_EQ(copy.value.array->count, 24u);
  EXPECT_STREQ(copy.value.array->At(23)->value.string->c_str(), "text");
}

TEST(SettingDataItem, ReadsAsAnotherTypeAsIfItWereMissing) {
  for (const SettingDataItem& item : AllKinds()) {
    SCOPED_TRACE(Describe(item));
    EXPECT_EQ(SASM::NumberOr(&item, -1), item.name == "number" ? 1.5 : -1);
    EXPECT_EQ(SASM::BoolOr(&item, false), item.name == "boolean");
    EXPECT_EQ(SASM::ArrayOrNull(&item) != nullptr, item.name == "array");
  }
  EXPECT_EQ(SASM::NumberOr(nullptr, -1), -1);
  EXPECT_TRUE(SASM::BoolOr(nullptr, true));
  EXPECT_EQ(SASM::ArrayOrNull(nullptr), nullptr);
}

TEST(SDIVector, ReplacesAnElementInItsPlace) {
  const SettingDataItem item = Array(3);
  SDIVector* array = item.value.array;
  EXPECT_TRUE(array->ReplaceElementAtIndex(1, *array->At(2)));
  EXPECT_TRUE(array->ReplaceElementAtIndex(2, *array->At(2))) << "itself";
  EXPECT_FALSE(array->ReplaceElementAtIndex(3, *array->At(0)));
  EXPECT_THAT(image::NamesOf(*array), ElementsAre("0", "2", "2"));
}

}  // namespace
