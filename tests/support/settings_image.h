// Settings images: built from readable pieces, and shown as text.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "settings/settings_dictionary.h"

namespace image {

using Bytes = std::string;

// "00 BF 54": three bytes.
Bytes Hex(const std::string& digits);
Bytes U16(unsigned int value);
Bytes U32(unsigned int value);
// A U16 count and the bytes.
Bytes Text(const std::string& text);

// Values, each behind its type byte.
Bytes Number(double value);
Bytes Bool(unsigned int value);
Bytes String(const std::string& text);
Bytes Array(const Bytes& elements = {});

// An element of an array: a name and a value.
Bytes Element(const std::string& name, const Bytes& value);
// A key, a value and the closing zero.
Bytes Entry(const std::string& key, const Bytes& value);

// Magic, version 4 and dictionary name, then the entries.
Bytes Body(const std::string& name, const Bytes& entries);
// A body behind its record header.
Bytes Framed(const Bytes& body);
Bytes File(const std::string& name, const Bytes& entries = {});

// An element "true" for each name.
Bytes Flags(const std::vector<std::string>& names);

// What a first start writes; with elements for its lists.
Bytes DefaultMasterFile(const Bytes& sites = {}, const Bytes& locations = {});
// What a new site is given.
Bytes DefaultSiteFile(const std::string& domain);

// "1.5", "true", "'x'", "[e=true f='y']", "?7".
std::string Value(const SASM::SettingDataItem& item);
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
