#include "settings/setting_data_item.h"

#include <cassert>
#include <utility>

namespace SASM {

SettingDataItem::SettingDataItem(const SimpleString& item_name,
                                 _SettingsDataType item_type, const void* data)
    : name(item_name), type(item_type), value{0} {
  CopyValue(type, data);
}

SettingDataItem::SettingDataItem(const SettingDataItem& other)
    : SettingDataItem(other.name, other.type, other.Data()) {}

SettingDataItem::SettingDataItem(SimpleString&& item_name, double number)
    : name(std::move(item_name)),
      type(kSettingsDataTypeDouble),
      value{number} {}

SettingDataItem::SettingDataItem(SimpleString&& item_name, bool boolean)
    : name(std::move(item_name)), type(kSettingsDataTypeBool), value{0} {
  value.boolean = boolean;
}

SettingDataItem::SettingDataItem(SimpleString&& item_name, SimpleString* string)
    : name(std::move(item_name)), type(kSettingsDataTypeString), value{0} {
  value.string = string;
}

SettingDataItem::SettingDataItem(SimpleString&& item_name, SDIVector* array)
    : name(std::move(item_name)), type(kSettingsDataTypeArray), value{0} {
  value.array = array;
}

SettingDataItem SettingDataItem::operator=(  // NOLINT
    const SettingDataItem& other) {
  if (this != &other) *this = SettingDataItem(other);
  return *this;
}

void SettingDataItem::DeleteOwned() {
  if (type == kSettingsDataTypeString) delete value.string;
  if (type == kSettingsDataTypeArray) delete value.array;
}

const void* SettingDataItem::Data() const {
  switch (type) {
    case kSettingsDataTypeDouble:
      return &value.number;
    case kSettingsDataTypeBool:
      return &value.boolean;
    case kSettingsDataTypeString:
      return value.string;
    case kSettingsDataTypeArray:
      return value.array;
  }
  return nullptr;
}

void SettingDataItem::SetData(_SettingsDataType data_type, const void* data) {
  assert(data_type == type);
  ReleaseValue();
  CopyValue(data_type, data);
}

void SettingDataItem::CopyValue(_SettingsDataType data_type, const void* data) {
  switch (data_type) {
    case kSettingsDataTypeDouble:
      value.number = *static_cast<const double*>(data);
      return;
    case kSettingsDataTypeBool:
      value.boolean = *static_cast<const bool*>(data);
      return;
    case kSettingsDataTypeString:
      value.string = new SimpleString(*static_cast<const SimpleString*>(data));
      return;
    case kSettingsDataTypeArray:
      value.array = static_cast<const SDIVector*>(data)->NewCopy();
      return;
  }
}

SDIVector::~SDIVector() { subclassDestructorDeleteElements(); }

void SDIVector::deleteElement(void* element) {
  delete static_cast<SettingDataItem*>(element);
}

void* SDIVector::copyElement(const void* element) {
  return new SettingDataItem(*static_cast<const SettingDataItem*>(element));
}

SDIVector* SDIVector::NewCopy() const {
  auto* copy = new SDIVector;
  for (unsigned int i = 0; i < count; ++i) copy->addElement(elements[i]);
  return copy;
}

void SDIVector::ReplaceElementAtIndex(unsigned int index,
                                      const SettingDataItem& item) {
  void* copy = copyElement(&item);  // `item` may be the element itself
  deleteElement(elements[index]);
  elements[index] = copy;
}

double NumberOr(const SettingDataItem* item, double fallback) {
  const bool is_number = item && item->type == kSettingsDataTypeDouble;
  return is_number ? item->value.number : fallback;
}

bool BoolOr(const SettingDataItem* item, bool fallback) {
  const bool is_boolean = item && item->type == kSettingsDataTypeBool;
  return is_boolean ? item->value.boolean : fallback;
}

SDIVector* ArrayOrNull(const SettingDataItem* item) {
  const bool is_array = item && item->type == kSettingsDataTypeArray;
  return is_array ? item->value.array : nullptr;
}

}  // namespace SASM
