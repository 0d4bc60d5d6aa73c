#include "settings/settings_writer.h"

#include <new>

#include "settings/big_endian.h"
#include "settings/settings_format.h"
#include "store/settings_manager.h"

namespace SMImplementation {
namespace {

void StoreRecordHeader(unsigned int body_size, unsigned char* bytes) {
  const bool is_short = body_size < kLongLengthFollows;
  const unsigned int length = is_short ? body_size : kLongLengthFollows;
  const unsigned int word = kRecordType << kShortLengthBits | length;
  StoreBigEndian(static_cast<unsigned short>(word), bytes);
  if (!is_short) StoreBigEndian(body_size, bytes + kShortHeaderSize);
}

}  // namespace

SettingsWriter::SettingsWriter(SASM::SettingsManager* manager,
                               const SASM::SimpleString& domain)
    : manager_(manager), domain_(domain) {}

void SettingsWriter::GetNewSettingsWithName(const SASM::SimpleString& name,
                                            unsigned char** data,
                                            unsigned long& length) {
  *data = nullptr;
  length = 0;
  WriteHeaderInfo(name);
  WriteSettingsDictionary();
  const unsigned long body_size = aggregator_.Size();
  if (failed_ || aggregator_.Failed() || body_size > kLongestBody) return;
  const unsigned int header_size =
      body_size < kLongLengthFollows ? kShortHeaderSize : kLongHeaderSize;
  *data = new (std::nothrow) unsigned char[header_size + body_size];
  if (!*data) return;
  length = header_size + body_size;
  StoreRecordHeader(static_cast<unsigned int>(body_size), *data);
  (void)aggregator_.GetData(body_size, *data + header_size);  // all of them
}

void SettingsWriter::WriteHeaderInfo(const SASM::SimpleString& name) {
  aggregator_.WriteU32(kMagic);
  aggregator_.WriteU16(kNewestVersion);
  aggregator_.WriteU32(0);
  aggregator_.WriteSimpleStringAsPString(name);
  aggregator_.WriteU32(0);
}

void SettingsWriter::WriteSettingsDictionary() {
  const SASM::SettingsDictionary* dictionary =
      manager_->EnsureSettingsAreLoadedForDomain(domain_);
  if (!dictionary) {
    failed_ = true;
    return;
  }
  for (const auto& entry : *dictionary) {
    aggregator_.WriteSimpleStringAsPString(entry.key);
    WriteItem(entry.value);
    aggregator_.WriteU8(kEntryTerminator);
  }
}

void SettingsWriter::WriteItem(const SASM::SettingDataItem& item) {
  aggregator_.WriteSettingsDataType(item.type);
  if (const SASM::SDIVector* array = SASM::ArrayOrNull(&item)) {
    WriteArray(*array);
  } else {
    WriteScalar(item);
  }
}

void SettingsWriter::WriteScalar(const SASM::SettingDataItem& item) {
  if (item.type == SASM::kSettingsDataTypeDouble) {
    aggregator_.WriteDouble(item.value.number);
  } else if (item.type == SASM::kSettingsDataTypeBool) {
    aggregator_.WriteU8(item.value.boolean ? 1 : 0);
  } else if (item.type == SASM::kSettingsDataTypeString) {
    aggregator_.WriteSimpleStringAsPString(*item.value.string);
  }
}

void SettingsWriter::WriteArray(const SASM::SDIVector& array) {
  for (unsigned int i = 0; i < array.count; ++i) {
    const SASM::SettingDataItem& element = *array.At(i);
    if (element.name.IsEmpty()) continue;  // would end the array
    aggregator_.WriteSimpleStringAsPString(element.name);
    aggregator_.WriteSettingsDataType(element.type);
    WriteScalar(element);
  }
  aggregator_.WriteU16(0);  // an empty name
  aggregator_.WriteU8(kEndOfArray);
}

}  // namespace SMImplementation
