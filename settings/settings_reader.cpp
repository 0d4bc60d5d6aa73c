#include "settings/settings_reader.h"

#include <bit>
#include <cstdio>
#include <memory>
#include <utility>

#include "settings/big_endian.h"
#include "settings/settings_format.h"

namespace SMImplementation {

using SASM::SDIVector;
using SASM::SettingDataItem;
using SASM::SettingsDictionary;
using SASM::SimpleString;

SettingsReader::SettingsReader(const unsigned char* data, unsigned long size)
    : data_(data), size_(size) {}

SettingsDictionary* SettingsReader::GetNewSettingsData(SimpleString** name) {
  if (!ReadHeaders(name)) return nullptr;
  auto dictionary = std::make_unique<SettingsDictionary>();
  while (!AtEnd()) {
    SettingDataItem item;
    const Entry entry = ReadEntry(&item);
    if (entry == Entry::kRejected) return nullptr;
    if (entry == Entry::kDropped) continue;
    SimpleString key = item.name;
    dictionary->insert(std::move(key), std::move(item));
  }
  return dictionary.release();
}

bool SettingsReader::ReadHeaders(SimpleString** name) {
  position_ = 0;
  unsigned short type = 0;
  unsigned int length = 0;
  GetHeaderInfo(&type, &length);
  if (type != kRecordType) return Reject("The record type is not 2.");
  if (length > size_ - position_) {
    return Reject("The declared length is beyond the end of the file.");
  }
  if (ReadU32() != kMagic) return Reject("Wrong magic number.");
  const unsigned short version = ReadU16();
  if (version < kOldestVersion || version > kNewestVersion) {
    return Reject("The version is not 2, 3 or 4.");
  }
  if (version == kNewestVersion) (void)ReadU32();  // reserved
  *name = ReadAndCopyPStringAsSimpleString();
  (void)ReadU32();  // reserved
  return true;
}

void SettingsReader::GetHeaderInfo(unsigned short* type, unsigned int* length) {
  const unsigned short word = ReadU16();
  *length = word & kShortLengthMask;
  if (*length == kLongLengthFollows) *length = ReadU32();
  *type = static_cast<unsigned short>(word >> kShortLengthBits);
}

SettingsReader::Entry SettingsReader::ReadEntry(SettingDataItem* item) {
  SimpleString key = ReadText();
  const unsigned char type = ReadU8();
  if (type == SASM::kSettingsDataTypeArray) {
    SDIVector* array = ReadArray();
    if (!array) return Entry::kRejected;
    *item = SettingDataItem(std::move(key), array);
  } else if (type < SASM::kSettingsDataTypeArray) {
    *item = ReadScalar(type, std::move(key));
  } else {
    Report(
        "Unexpected data-type encountered when parsing settings; "
        "IGNORING VALUE.");
  }
  if (ReadU8() != kEntryTerminator) {
    Reject("The entry is not closed by a zero byte.");
    return Entry::kRejected;
  }
  return type > SASM::kSettingsDataTypeArray ? Entry::kDropped : Entry::kRead;
}

SDIVector* SettingsReader::ReadArray() {
  auto array = std::make_unique<SDIVector>();
  for (SimpleString name = ReadText(); !name.IsEmpty(); name = ReadText()) {
    const unsigned char type = ReadU8();
    if (type == SASM::kSettingsDataTypeArray) {
      Report(
          "Nested arrays are not supported. They are currently not a "
          "use-case; IGNORING VALUE.");
    } else if (type > SASM::kSettingsDataTypeArray) {
      Report(
          "Unexpected data-type encountered when parsing array; "
          "IGNORING VALUE.");
    } else {
      array->adoptElement(
          new SettingDataItem(ReadScalar(type, std::move(name))));
    }
  }
  if (ReadU8() == kEndOfArray) return array.release();
  Reject("The array is not closed by its marker.");
  return nullptr;
}

SettingDataItem SettingsReader::ReadScalar(unsigned char type,
                                           SimpleString&& name) {
  if (type == SASM::kSettingsDataTypeDouble) {
    return SettingDataItem(std::move(name), ReadDouble());
  }
  if (type == SASM::kSettingsDataTypeBool) {
    return SettingDataItem(std::move(name), ReadU8() != 0);
  }
  return SettingDataItem(std::move(name), ReadAndCopyPStringAsSimpleString());
}

const unsigned char* SettingsReader::Take(std::uint64_t count,
                                          const char* message) {
  if (size_ - position_ < count) {
    Report(message);
    return nullptr;
  }
  const unsigned char* bytes = data_ + position_;
  position_ += count;
  return bytes;
}

bool SettingsReader::Reject(const char* what) {
  Remember(what);
  return false;
}

void SettingsReader::Remember(const char* what) {
  if (!fault_.what) fault_ = {what, position_};
}

void SettingsReader::Report(const char* message) {
  Remember(message);
  if (is_quiet_) return;
  std::fprintf(stderr, "SMSettingsReader: %s\n", message);
}

unsigned char SettingsReader::ReadU8() {
  const unsigned char* bytes =
      Take(1, "ReadU8() attempted to read beyond end-of-stream.");
  return bytes ? *bytes : 0;
}

unsigned short SettingsReader::ReadU16() {
  const unsigned char* bytes =
      Take(2, "ReadU16() attempted to read beyond end-of-stream.");
  return bytes ? LoadBigEndian<unsigned short>(bytes) : 0;
}

unsigned int SettingsReader::ReadU32() {
  const unsigned char* bytes =
      Take(4, "ReadU32() attempted to read beyond end-of-stream.");
  return bytes ? LoadBigEndian<unsigned int>(bytes) : 0;
}

double SettingsReader::ReadDouble() {
  const unsigned char* bytes =
      Take(8, "ReadDouble() attempted to read beyond end-of-stream.");
  return bytes ? std::bit_cast<double>(LoadBigEndian<std::uint64_t>(bytes))
               : 0.0;
}

SimpleString SettingsReader::ReadText() {
  const unsigned short size = ReadU16();
  const unsigned char* bytes =
      Take(size,
           "ReadAndCopyPStringAsSimpleString() attempted to read beyond "
           "end-of-stream.");
  return SimpleString::FromBytes(bytes, bytes ? size : 0);
}

SimpleString* SettingsReader::ReadAndCopyPStringAsSimpleString() {
  return new SimpleString(ReadText());
}

}  // namespace SMImplementation
