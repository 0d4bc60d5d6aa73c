// One setting value, and lists of them.
#pragma once

#include <utility>

#include "settings/pointer_vector.h"
#include "settings/simple_string.h"

namespace SASM {

class SDIVector;

// The type of a value. The numbers are the type bytes of the settings file.
enum _SettingsDataType : int {  // NOLINT(bugprone-reserved-identifier)
  kSettingsDataTypeDouble = 0,
  kSettingsDataTypeBool = 1,
  kSettingsDataTypeString = 2,
  kSettingsDataTypeArray = 3,
};

// A named, typed value. In a dictionary the name equals the key, in an array
// it is the element's name. Owns everything it points to; every copy is deep.
// An item of an unknown type code carries no value.
class SettingDataItem {
 public:
  // An empty name and the number 0.
  SettingDataItem() : type(kSettingsDataTypeDouble), value{0} {}
  // Copies the value at `data`: see SetData.
  SettingDataItem(const SimpleString& item_name, _SettingsDataType item_type,
                  const void* data);
  SettingDataItem(const SettingDataItem& other);
  // Leaves `other` an empty name and the number 0.
  SettingDataItem(SettingDataItem&& other) noexcept
      : name(std::move(other.name)),
        type(std::exchange(other.type, kSettingsDataTypeDouble)),
        value(other.value) {
    other.value.number = 0;
  }
  ~SettingDataItem() { ReleaseValue(); }

  SettingDataItem(SimpleString&& item_name, double number);
  SettingDataItem(SimpleString&& item_name, bool boolean);
  // Take over `string` or `array`, which is not null.
  SettingDataItem(SimpleString&& item_name, SimpleString* string);
  SettingDataItem(SimpleString&& item_name, SDIVector* array);

  // The result is a copy of the item after the assignment, not a reference.
  SettingDataItem operator=(const SettingDataItem& other);  // NOLINT
  void operator=(SettingDataItem&& other) noexcept {        // NOLINT
    std::swap(name, other.name);
    std::swap(type, other.type);
    std::swap(value, other.value);
  }

  // Replaces the value by a copy of the one at `data`: a double, a bool, a
  // SimpleString or an SDIVector, according to `data_type`, which is the item's
  // own type. For an unknown type code `data` is not read.
  void SetData(_SettingsDataType data_type, const void* data);

  SimpleString name;
  _SettingsDataType type;
  // `type` says which member is in use.
  union {
    double number;
    bool boolean;
    SimpleString* string;
    SDIVector* array;
  } value;

 private:
  void ReleaseValue() {
    if (type > kSettingsDataTypeBool) DeleteOwned();
  }
  void DeleteOwned();
  void CopyValue(_SettingsDataType data_type, const void* data);
  // What CopyValue reads for this type.
  [[nodiscard]] const void* Data() const;
};

// A PointerVector whose elements are SettingDataItem.
class SDIVector : public SMImplementation::PointerVector {
 public:
  ~SDIVector() override;
  void deleteElement(void* element) override;
  void* copyElement(const void* element) override;

  // Borrowed, valid until the element is removed. `index` is below count.
  [[nodiscard]] SettingDataItem* At(unsigned int index) const {
    return static_cast<SettingDataItem*>(elements[index]);
  }

  // Puts a copy of `item` in the place of the element at `index`, which is
  // below count.
  void ReplaceElementAtIndex(unsigned int index, const SettingDataItem& item);

  // A deep copy, owned by the caller. An element for which the copy cannot
  // grow is left out.
  [[nodiscard]] SDIVector* NewCopy() const;
};

// Typed reads of a stored item. A missing item (null) and an item of another
// type read as the fallback.
[[nodiscard]] double NumberOr(const SettingDataItem* item, double fallback);
[[nodiscard]] bool BoolOr(const SettingDataItem* item, bool fallback);
// Borrowed from the item. The fallback is null.
[[nodiscard]] SDIVector* ArrayOrNull(const SettingDataItem* item);

}  // namespace SASM
