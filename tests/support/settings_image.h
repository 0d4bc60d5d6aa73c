// Settings images: built from readable pieces, and shown as text.
#pragma once

#include <bit>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "settings/settings_dictionary.h"

namespace image {

using Bytes = std::string;

inline Bytes BigEndian(std::uint64_t value, int size) {
  Bytes bytes;
  while (size-- > 0) bytes += static_cast<char>(value >> (8 * size));
  return bytes;
}
inline Bytes U16(unsigned int value) { return BigEndian(value, 2); }
inline Bytes U32(unsigned int value) { return BigEndian(value, 4); }
// "00 BF 54": three bytes.
Bytes Hex(const std::string& digits);
// A U16 count and the bytes.
inline Bytes Text(const std::string& text) {
  return U16(static_cast<unsigned int>(text.size())) + text;
}

// Values, each behind its type byte.
inline Bytes Number(double value) {
  return Bytes(1, 0) + BigEndian(std::bit_cast<std::uint64_t>(value), 8);
}
inline Bytes Bool(unsigned int value) { return "\1" + BigEndian(value, 1); }
inline Bytes String(const std::string& text) { return "\2" + Text(text); }
inline Bytes Array(const Bytes& elements = {}) {
  return "\3" + elements + Hex("00 00 09");
}

// An element of an array: a name and a value.
inline Bytes Element(const std::string& name, const Bytes& value) {
  return Text(name) + value;
}
// A key, a value and the closing zero.
inline Bytes Entry(const std::string& key, const Bytes& value) {
  return Text(key) + value + BigEndian(0, 1);
}

// Magic, version 4 and dictionary name, then the entries.
inline Bytes Body(const std::string& name, const Bytes& entries) {
  return "TCSO" + U16(4) + U32(0) + Text(name) + U32(0) + entries;
}
// A body behind its record header.
Bytes Framed(const Bytes& body);
inline Bytes File(const std::string& name, const Bytes& entries = {}) {
  return Framed(Body(name, entries));
}

// An element "true" for each name.
Bytes Flags(const std::vector<std::string>& names);

// What a first start writes; with elements for its lists.
Bytes DefaultMasterFile(const Bytes& sites = {}, const Bytes& locations = {});
// What a new site is given.
Bytes DefaultSiteFile(const std::string& domain);

// In dictionary order: "k=1.5 b=true s='x' a=[e=true f='y'] u=?7".
std::string Describe(const SASM::SettingsDictionary& dictionary);
std::string Describe(const SASM::SettingDataItem& item);
// As it is read, which turns the entries of each bucket round; "rejected" for
// an image that is.
std::string Describe(const Bytes& file);

// What the program reads, from a block of memory that ends with the image.
using Dictionary = std::unique_ptr<SASM::SettingsDictionary>;
Dictionary Read(const Bytes& file);

// The names in a list of settings.
std::vector<std::string> NamesOf(const SASM::SDIVector& list);

}  // namespace image
