#include <algorithm>
#include <cmath>
#include <cstring>

#include "cli/document.h"

using SASM::SettingDataItem;
using SASM::SettingsDictionary;

namespace {

json_t* NewDocumentNumber(double number) {
  const bool is_negative_zero = number == 0 && std::signbit(number);
  const char* word = is_negative_zero ? "-0" : WordOfNumber(number);
  if (!word) return NewNumber(number);
  json_t* object = json_object();
  Set(object, "number", json_string(word));
  return object;
}

json_t* NewValue(const SettingDataItem& item);

json_t* NewElements(const SASM::SDIVector& elements) {
  json_t* array = json_array();
  for (unsigned int i = 0; i < elements.count; ++i) {
    const SettingDataItem& element = *elements.At(i);
    json_t* object = json_object();
    Set(object, "name", NewText(element.name.c_str()));
    Set(object, "value", NewValue(element));
    json_array_append_new(array, object);
  }
  json_t* object = json_object();
  Set(object, "array", array);
  return object;
}

// The reader gives items of known types only.
json_t* NewValue(const SettingDataItem& item) {
  switch (item.type) {
    case SASM::kSettingsDataTypeBool:
      return json_boolean(item.value.boolean);
    case SASM::kSettingsDataTypeString:
      return NewText(item.value.string->c_str());
    case SASM::kSettingsDataTypeArray:
      return NewElements(*item.value.array);
    default:
      return NewDocumentNumber(item.value.number);
  }
}

}  // namespace

json_t* NewEntries(const SettingsDictionary& settings,
                   std::span<const std::string_view> left_out) {
  std::vector<const SettingsDictionary::Node*> entries;
  for (const auto& entry : settings) {
    if (std::ranges::count(left_out, std::string_view(entry.key.c_str())) > 0) {
      continue;
    }
    entries.push_back(&entry);
  }
  std::ranges::sort(entries, [](const auto* a, const auto* b) {
    return std::strcmp(a->key.c_str(), b->key.c_str()) < 0;
  });
  json_t* array = json_array();
  for (const auto* entry : entries) {
    json_t* object = json_object();
    Set(object, "key", NewText(entry->key.c_str()));
    Set(object, "value", NewValue(entry->value));
    json_array_append_new(array, object);
  }
  return array;
}
