// One setting value, and lists of them.
#pragma once

#include <utility>

#include "settings/pointer_vector.h"
#include "settings/simple_string.h"

namespace SASM {

class SDIVector;

// What a value is. The numbers are the type bytes of the settings file.
enum _SettingsDataType : int {  // NOLINT(bugprone-reserved-identifier)
  kSettingsDataTypeDouble = 0,
  kSettingsDataTypeBool = 1,
  kSettingsDataTypeString = 2,
  kSettingsDataTypeArray = 3,
};

// A named, typed value. In a dictionary the name equals the key, in an array
// it is the element's name. Owns everything it points to; every copy is deep.
// An item of any other type code carries no value.
//
// When memory is short a copy may come out without its name, string or some
// of its elements: IsWhole() tells.
class SettingDataItem {
 public:
  // An empty name and the number 0.
  SettingDataItem() : type(kSettingsDataTypeDouble), value{0} {}
  // `data` points to what SetData reads for `type`; it is copied.
  SettingDataItem(const SimpleString& name, _SettingsDataType type,
                  const void* data);
  SettingDataItem(const SettingDataItem& other);
  // Leaves `other` the number 0 without a name.
  SettingDataItem(SettingDataItem&& other) noexcept
      : name(std::move(other.name)),
        type(std::exchange(other.type, kSettingsDataTypeDouble)),
        value(other.value) {
    other.value.number = 0;
  }
  ~SettingDataItem() { ReleaseValue(); }

  SettingDataItem(SimpleString&& name, double number);
  SettingDataItem(SimpleString&& name, bool boolean);
  // Takes over `string` or `array`, which may be null when memory was short.
  SettingDataItem(SimpleString&& name, SimpleString* string);
  SettingDataItem(SimpleString&& name, SDIVector* array);

  // The result is a copy of the item after the assignment, not a reference.
  SettingDataItem operator=(const SettingDataItem& other);  // NOLINT
  void operator=(SettingDataItem&& other) noexcept {        // NOLINT
    std::swap(name, other.name);
    std::swap(type, other.type);
    std::swap(value, other.value);
  }

  // Replaces the value by a copy of the one at `data`: a double, a bool, a
  // SimpleString or an SDIVector as `type` says; for any other type code
  // `data` is not read. `type` is the item's own, which does not change.
  void SetData(_SettingsDataType type, const void* data);

  // True when the item and all it owns hold what they were made from.
  [[nodiscard]] bool IsWhole() const;

  SimpleString name;
  _SettingsDataType type;
  // The member that `type` names is in use.
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

  // A new item holding what `item` held, for adoptElement; null when memory
  // is short.
  [[nodiscard]] static SettingDataItem* NewMoved(SettingDataItem&& item);

  // Puts a copy of `item` in the place of the element at `index`. False when
  // memory is short or the index out of range: the vector is then as before.
  bool ReplaceElementAtIndex(unsigned int index, const SettingDataItem& item);

  // A deep copy, owned by the caller. An element that finds no memory is left
  // out (see IsComplete); null when there is none for the vector itself.
  [[nodiscard]] SDIVector* NewCopy() const;

  // False for a copy that lacks an element of its original.
  [[nodiscard]] bool IsComplete() const { return complete_; }

 private:
  bool complete_ = true;
};

// Typed reads of a stored item. A missing item (null) and one of another type
// read as the fallback; no union member but the item's own is ever touched.
[[nodiscard]] double NumberOr(const SettingDataItem* item, double fallback);
[[nodiscard]] bool BoolOr(const SettingDataItem* item, bool fallback);
// Borrowed from the item.
[[nodiscard]] SDIVector* ArrayOrNull(const SettingDataItem* item);

}  // namespace SASM
