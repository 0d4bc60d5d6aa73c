// The settings reader on arbitrary bytes.
#include <memory>

#include "fuzz/fuzz_target.h"
#include "settings/settings_reader.h"

using SASM::SettingDataItem;
using SASM::SimpleString;
using SMImplementation::SettingsReader;

namespace {

// The whole image at once.
bool IsAccepted(const std::uint8_t* data, std::size_t size) {
  SettingsReader reader(data, size);
  SimpleString* name = nullptr;
  const std::unique_ptr<SASM::SettingsDictionary> dictionary(
      reader.GetNewSettingsData(&name));
  const std::unique_ptr<SimpleString> owned_name(name);
  Require(reader.Position() <= size, "the reader stays inside the image");
  if (!dictionary) return false;
  Require(name, "an accepted image has a name");
  for (const auto& entry : *dictionary) {
    Require(entry.key == entry.value.name, "a value is named by its key");
  }
  return true;
}

// Entry by entry; each takes at least one byte.
bool IsAcceptedInSteps(const std::uint8_t* data, std::size_t size) {
  SettingsReader reader(data, size);
  SimpleString* name = nullptr;
  bool accepted = reader.ReadHeaders(&name);
  const std::unique_ptr<SimpleString> owned_name(name);
  while (accepted && !reader.AtEnd()) {
    const std::uint64_t start = reader.Position();
    SettingDataItem item;
    accepted = reader.ReadEntry(&item) != SettingsReader::Entry::kRejected;
    Require(reader.Position() > start, "an entry takes bytes");
  }
  Require(accepted || reader.TakeFault().what, "a rejection has a reason");
  return accepted;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  Require(IsAccepted(data, size) == IsAcceptedInSteps(data, size),
          "both ways of reading agree");
  return 0;
}
