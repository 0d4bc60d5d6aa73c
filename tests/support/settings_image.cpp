#include "tests/support/settings_image.h"

#include <sstream>

#include "settings/settings_reader.h"

namespace image {

Bytes Hex(const std::string& digits) {
  std::istringstream pairs(digits);
  Bytes bytes;
  for (unsigned int byte; pairs >> std::hex >> byte;) {
    bytes += static_cast<char>(byte);
  }
  return bytes;
}

Bytes Framed(const Bytes& body) {
  const auto size = static_cast<unsigned int>(body.size());
  return (size < 63 ? U16(0x80 | size) : U16(0xBF) + U32(size)) + body;
}

Bytes Flags(const std::vector<std::string>& names) {
  Bytes elements;
  for (const std::string& name : names) elements += Element(name, Bool(1));
  return elements;
}

Bytes DefaultMasterFile(const Bytes& sites, const Bytes& locations) {
  return File("settings", Entry("autoUpdateInterval", Number(14)) +
                              Entry("crossdomainAllow", Bool(0)) +
                              Entry("crossdomainAlways", Bool(1)) +
                              Entry("autoUpdateDisabled", Bool(0)) +
                              Entry("disallowP2PUplink", Bool(0)) +
                              Entry("defaultalways", Bool(0)) +
                              Entry("secureCrossDomainCacheSize", Number(-1)) +
                              Entry("allowThirdPartyLSOAccess", Bool(1)) +
                              Entry("domains", Array(sites)) +
                              Entry("trustedPaths", Array(locations)) +
                              Entry("defaultklimit", Number(100)));
}

Bytes DefaultSiteFile(const std::string& domain) {
  return File(domain + "/settings",
              Entry("p2pallow", Bool(0)) + Entry("always", Bool(0)) +
                  Entry("p2palways", Bool(0)) + Entry("klimit", Number(100)) +
                  Entry("allow", Bool(0)));
}

std::string Describe(const SASM::SettingDataItem& item) {
  std::ostringstream text;
  text << item.name.c_str() << "=" << std::boolalpha;
  switch (item.type) {
    case SASM::kSettingsDataTypeDouble:
      text << item.value.number;
      break;
    case SASM::kSettingsDataTypeBool:
      text << item.value.boolean;
      break;
    case SASM::kSettingsDataTypeString:
      text << "'" << item.value.string->c_str() << "'";
      break;
    case SASM::kSettingsDataTypeArray:
      text << "[";
      for (unsigned int i = 0; i < item.value.array->count; ++i) {
        text << (i ? " " : "") << Describe(*item.value.array->At(i));
      }
      text << "]";
      break;
    default:
      text << "?" << item.type;
  }
  return text.str();
}

std::string Describe(const SASM::SettingsDictionary& dictionary) {
  std::string text;
  for (const auto& entry : dictionary) text += " " + Describe(entry.value);
  return text.erase(0, 1);
}

Dictionary Read(const Bytes& file) {
  const std::unique_ptr<unsigned char[]> bytes(new unsigned char[file.size()]);
  std::ranges::copy(file, bytes.get());
  SMImplementation::SettingsReader reader(bytes.get(), file.size());
  SASM::SimpleString* name = nullptr;
  Dictionary dictionary(reader.GetNewSettingsData(&name));
  delete name;
  return dictionary;
}

std::string Describe(const Bytes& file) {
  const Dictionary dictionary = Read(file);
  return dictionary ? Describe(*dictionary) : "rejected";
}

std::vector<std::string> NamesOf(const SASM::SDIVector& list) {
  std::vector<std::string> names;
  for (unsigned int i = 0; i < list.count; ++i) {
    names.push_back(list.At(i)->name.c_str());
  }
  return names;
}

}  // namespace image
