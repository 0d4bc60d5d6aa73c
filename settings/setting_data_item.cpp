#include "settings/setting_data_item.h"

#include <cassert>
#include <new>
#include <utility>

namespace SASM {

SettingDataItem::SettingDataItem(const SimpleString& name,
                                 _SettingsDataType type, const void* data)
    : name(name), type(type), value{0} {
  SetData(type, data);
}

SettingDataItem::SettingDataItem(const SettingDataItem& other)
    : name(other.name), type(other.type), value{0} {
  SetData(type, other.Data());
}

SettingDataItem::SettingDataItem(SimpleString&& name, double number)
    : name(std::move(name)), type(kSettingsDataTypeDouble), value{number} {}

SettingDataItem::SettingDataItem(SimpleString&& name, bool boolean)
    : name(std::move(name)), type(kSettingsDataTypeBool), value{0} {
  value.boolean = boolean;
}

SettingDataItem::SettingDataItem(SimpleString&& name, SimpleString* string)
    : name(std::move(name)), type(kSettingsDataTypeString), value{0} {
  value.string = string;
}

SettingDataItem::SettingDataItem(SimpleString&& name, SDIVector* array)
    : name(std::move(name)), type(kSettingsDataTypeArray), value{0} {
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
  value.number = 0;
  switch (data_type) {
    case kSettingsDataTypeDouble:
      value.number = *static_cast<const double*>(data);
      return;
    case kSettingsDataTypeBool:
      value.boolean = *static_cast<const bool*>(data);
      return;
    case kSettingsDataTypeString:
      value.string =
          data ? new (std::nothrow)
                     SimpleString(*static_cast<const SimpleString*>(data))
               : nullptr;
      return;
    case kSettingsDataTypeArray:
      value.array =
          data ? static_cast<const SDIVector*>(data)->NewCopy() : nullptr;
      return;
  }
}

bool SettingDataItem::IsWhole() const {
  if (!name.HasText()) return false;
  if (type == kSettingsDataTypeString) {
    return value.string && value.string->HasText();
  }
  if (type == kSettingsDataTypeArray) {
    return value.array && value.array->IsComplete();
  }
  return true;
}

SDIVector::~SDIVector() { subclassDestructorDeleteElements(); }

void SDIVector::deleteElement(void* element) {
  delete static_cast<SettingDataItem*>(element);
}

void* SDIVector::copyElement(const void* element) {
  auto* copy = new (std::nothrow)
      SettingDataItem(*static_cast<const SettingDataItem*>(element));
  if (copy && copy->IsWhole()) return copy;
  delete copy;
  return nullptr;
}

SettingDataItem* SDIVector::NewMoved(SettingDataItem&& item) {
  return item.IsWhole() ? new (std::nothrow) SettingDataItem(std::move(item))
                        : nullptr;
}

SDIVector* SDIVector::NewCopy() const {
  auto* copy = new (std::nothrow) SDIVector;
  if (!copy) return nullptr;
  copy->complete_ = complete_;
  for (unsigned int i = 0; i < count; ++i) {
    if (!copy->addElement(elements[i])) copy->complete_ = false;
  }
  return copy;
}

bool SDIVector::ReplaceElementAtIndex(unsigned int index,
                                      const SettingDataItem& item) {
  if (index >= count) return false;
  void* copy = copyElement(&item);
  if (!copy) return false;
  deleteElement(elements[index]);
  elements[index] = copy;
  return true;
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
