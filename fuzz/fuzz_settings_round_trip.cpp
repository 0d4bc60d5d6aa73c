// An image that is read, written and read again.
#include <algorithm>
#include <bit>
#include <cstring>
#include <memory>
#include <vector>

#include "fuzz/fuzz_target.h"
#include "settings/settings_reader.h"
#include "settings/settings_writer.h"
#include "store/settings_manager.h"

using SASM::SettingDataItem;
using SASM::SettingsDictionary;
using SASM::SimpleString;
using Image = std::vector<std::uint8_t>;

namespace {

// A user without a home directory: everything stays in memory.
class NoFileManager : public SASM::FileManager {
 public:
  bool RemoveFileAtPath(const SimpleString&) override { return false; }
  bool RemoveFilesInDirectoryInDateRange(const SimpleString&, unsigned long,
                                         unsigned long) override {
    return false;
  }
  std::uint64_t SizeOfFileAtPath(const SimpleString&) const override {
    return 0;
  }
  bool CreateDirectoryAtPath(const SimpleString&,
                             const SimpleString&) override {
    return false;
  }
  const SimpleString& GetPathSeparator() const override { return kSeparator; }
  const SimpleString& GetAssetCacheDirectory() const override { return kNone; }
  const SimpleString& GetUserSettingsBaseDirectory() const override {
    return kNone;
  }
  const SimpleString& GetDRMLicenseDataDirectory() const override {
    return kNone;
  }
  SortableStringVector* CreateNewListOfDirectoryContents(
      const SimpleString&) const override {
    return new SortableStringVector;
  }

 private:
  const SimpleString kSeparator = "/";
  const SimpleString kNone;
};

std::unique_ptr<SettingsDictionary> Read(const std::uint8_t* data,
                                         std::size_t size) {
  SimpleString* name = nullptr;
  std::unique_ptr<SettingsDictionary> dictionary(
      SMImplementation::SettingsReader(data, size).GetNewSettingsData(&name));
  delete name;
  return dictionary;
}

// The image of the dictionary as it is, in its own order.
Image Write(const SettingsDictionary& dictionary) {
  static NoFileManager files;
  SASM::SettingsManager manager(&files);
  const SimpleString domain = "site";
  SettingsDictionary* copy = manager.EnsureSettingsAreLoadedForDomain(domain);
  std::vector<const SettingsDictionary::Node*> nodes;
  for (const auto& node : dictionary) nodes.push_back(&node);
  // The newest of a bucket comes first.
  std::for_each(nodes.rbegin(), nodes.rend(), [&](const auto* node) {
    copy->insert(node->key, node->value);
  });
  unsigned char* data = nullptr;
  unsigned long size = 0;
  SMImplementation::SettingsWriter(&manager, domain)
      .GetNewSettingsWithName("site/settings", &data, size);
  Require(data, "what has been read can be written");
  const std::unique_ptr<unsigned char[]> owned(data);
  return Image(data, data + size);
}

bool AreEqual(const SettingDataItem& a, const SettingDataItem& b) {
  if (!(a.name == b.name) || a.type != b.type) return false;
  switch (a.type) {
    case SASM::kSettingsDataTypeDouble:
      return std::bit_cast<std::uint64_t>(a.value.number) ==
             std::bit_cast<std::uint64_t>(b.value.number);
    case SASM::kSettingsDataTypeBool:
      return a.value.boolean == b.value.boolean;
    case SASM::kSettingsDataTypeString:
      return *a.value.string == *b.value.string;
    case SASM::kSettingsDataTypeArray:
      break;
  }
  const SASM::SDIVector& left = *a.value.array;
  const SASM::SDIVector& right = *b.value.array;
  if (left.count != right.count) return false;
  for (unsigned int i = 0; i < left.count; ++i) {
    if (!AreEqual(*left.At(i), *right.At(i))) return false;
  }
  return true;
}

bool AreEqual(const SettingsDictionary& a, const SettingsDictionary& b) {
  std::size_t surplus = 0;
  for (const auto& node : b) surplus += node.bucket < b.kBucketCount ? 1 : 0;
  for (const auto& node : a) {
    const auto found = b.find(node.key);
    if (found == b.end() || !AreEqual(node.value, found->value)) return false;
    --surplus;
  }
  return surplus == 0;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const auto first = Read(data, size);
  if (!first) return 0;
  const Image second_image = Write(*first);
  const auto second = Read(second_image.data(), second_image.size());
  Require(second && AreEqual(*first, *second), "a read image is written whole");
  // Reading reverses the order within each bucket; reading twice restores it.
  const Image third_image = Write(*second);
  const auto third = Read(third_image.data(), third_image.size());
  Require(third && AreEqual(*second, *third), "and again");
  Require(third_image.size() == second_image.size(), "at the same size");
  Require(Write(*third) == second_image, "and back to the same bytes");
  return 0;
}
