#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <memory>
#include <string>
#include <utility>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/json_writer.h"
#include "cli/plain_text.h"
#include "cli/settings_source.h"
#include "settings/settings_reader.h"
#include "strings/printable_text.h"

using SASM::SettingDataItem;
using SASM::SimpleString;
using SMImplementation::SettingsReader;

namespace {

// In the order of _SettingsDataType.
constexpr const char* kTypeWords[] = {"number", "boolean", "string", "array"};

const char* TypeWord(const SettingDataItem& item) {
  const auto type = static_cast<unsigned int>(item.type);
  return type < std::size(kTypeWords) ? kTypeWords[type] : "unknown";
}

// Prints what a file holds, in the order of the calls.
class Listing {
 public:
  virtual ~Listing() = default;
  virtual void BeginFile(const char* path) = 0;
  // The name that the file carries inside. Before the entries.
  virtual void Name(const char* name) = 0;
  // `fault` has no text when the entry is undamaged.
  virtual void Entry(const SettingDataItem& entry, std::uint64_t offset,
                     const SettingsReader::Fault& fault) = 0;
  // `damage` is what ended the reading, or else the first fault in the file. It
  // has no text when there was none.
  virtual void EndFile(const SettingsReader::Fault& damage,
                       bool is_rejected) = 0;
};

class TextListing : public Listing {
 public:
  void BeginFile(const char* path) override {
    std::puts(Printable(path).c_str());
  }
  void Name(const char* name) override {
    std::printf("  \"%s\"\n", Printable(name).c_str());
  }
  void Entry(const SettingDataItem& entry, std::uint64_t offset,
             const SettingsReader::Fault& fault) override {
    PrintItem(std::to_string(offset), entry);
    const SASM::SDIVector* elements = SASM::ArrayOrNull(&entry);
    for (unsigned int i = 0; elements && i < elements->count; ++i) {
      PrintItem("", *elements->At(i));
    }
    if (fault.what) PrintFault(fault);
  }
  void EndFile(const SettingsReader::Fault& damage, bool is_rejected) override {
    if (is_rejected) PrintFault(damage);
  }

 private:
  static std::string ValueText(const SettingDataItem& item) {
    switch (item.type) {
      case SASM::kSettingsDataTypeDouble:
        return " = " + Decimal(item.value.number);
      case SASM::kSettingsDataTypeBool:
        return item.value.boolean ? " = true" : " = false";
      case SASM::kSettingsDataTypeString:
        return " = \"" + Printable(item.value.string->c_str()) + "\"";
      default:
        return "";
    }
  }

  // Elements of an array have no offset and are indented.
  static void PrintItem(const std::string& offset,
                        const SettingDataItem& item) {
    std::printf("%10s  %-7s  %s%s%s\n", offset.c_str(), TypeWord(item),
                offset.empty() ? "  " : "",
                Printable(item.name.c_str()).c_str(), ValueText(item).c_str());
  }

  static void PrintFault(const SettingsReader::Fault& fault) {
    std::printf("%10" PRIu64 "  damage   %s\n", fault.offset, fault.what);
  }
};

class JsonListing : public Listing {
 public:
  JsonListing() { json_.BeginArray(); }
  ~JsonListing() override {
    json_.EndArray();
    JsonWriter::EndLine();
  }
  JsonListing(const JsonListing&) = delete;
  JsonListing& operator=(const JsonListing&) = delete;

  void BeginFile(const char* path) override {
    json_.BeginObject();
    json_.Key("file").Text(path);
  }
  void Name(const char* name) override {
    json_.Key("name").Text(name);
    json_.Key("entries").BeginArray();
    has_entries_ = true;
  }
  void Entry(const SettingDataItem& entry, std::uint64_t offset,
             const SettingsReader::Fault& fault) override {
    json_.BeginObject();
    json_.Key("offset").Integer(offset);
    WriteItem("key", entry);
    if (fault.what) WriteFault(fault);
    json_.EndObject();
  }
  void EndFile(const SettingsReader::Fault& damage, bool) override {
    if (std::exchange(has_entries_, false)) json_.EndArray();
    if (damage.what) WriteFault(damage);
    json_.EndObject();
  }

 private:
  void WriteItem(const char* name_key, const SettingDataItem& item) {
    json_.Key(name_key).Text(item.name.c_str());
    json_.Key("type").Text(TypeWord(item));
    const auto type = static_cast<unsigned int>(item.type);
    if (type < std::size(kTypeWords)) WriteValue(item);
  }

  void WriteValue(const SettingDataItem& item) {
    json_.Key("value");
    if (const SASM::SDIVector* elements = SASM::ArrayOrNull(&item)) {
      return WriteElements(*elements);
    }
    if (item.type == SASM::kSettingsDataTypeString) {
      json_.Text(item.value.string->c_str());
    } else if (item.type == SASM::kSettingsDataTypeBool) {
      json_.Boolean(item.value.boolean);
    } else {
      json_.Number(item.value.number);
    }
  }

  void WriteElements(const SASM::SDIVector& elements) {
    json_.BeginArray();
    for (unsigned int i = 0; i < elements.count; ++i) {
      json_.BeginObject();
      WriteItem("name", *elements.At(i));
      json_.EndObject();
    }
    json_.EndArray();
  }

  void WriteFault(const SettingsReader::Fault& fault) {
    json_.Key("damage").BeginObject();
    json_.Key("what").Text(fault.what);
    json_.Key("offset").Integer(fault.offset);
    json_.EndObject();
  }

  JsonWriter json_;
  bool has_entries_ = false;
};

// Walks the entries of one image.
class Inspection {
 public:
  Inspection(const SASM::FileImage& image, Listing* listing)
      : reader_(image.bytes.get(), image.size), listing_(listing) {
    reader_.KeepQuiet();
  }

  void Run() {
    SimpleString* read_name = nullptr;
    is_rejected_ = !reader_.ReadHeaders(&read_name);
    const std::unique_ptr<SimpleString> name(read_name);
    (void)TakeFault();
    if (is_rejected_) return;
    listing_->Name(name->c_str());
    while (!is_rejected_ && !reader_.AtEnd()) ListEntry();
  }

  // See Listing::EndFile.
  [[nodiscard]] const SettingsReader::Fault& Damage() const { return damage_; }
  [[nodiscard]] bool IsRejected() const { return is_rejected_; }

 private:
  void ListEntry() {
    const std::uint64_t offset = reader_.Position();
    SettingDataItem entry;
    const SettingsReader::Entry result = reader_.ReadEntry(&entry);
    is_rejected_ = result == SettingsReader::Entry::kRejected;
    const SettingsReader::Fault fault = TakeFault();
    if (!is_rejected_) listing_->Entry(entry, offset, fault);
  }

  // The fault found since the last call. Has no text when there was none.
  SettingsReader::Fault TakeFault() {
    const SettingsReader::Fault fault = reader_.TakeFault();
    if (is_rejected_ || !damage_.what) damage_ = fault;
    return fault;
  }

  SettingsReader reader_;
  Listing* listing_;
  SettingsReader::Fault damage_;
  bool is_rejected_ = false;
};

// False when the file is damaged or cannot be read.
bool InspectFile(const char* path, Listing* listing) {
  SASM::FileImage image;
  const ReadResult result = ReadImage(path, &image);
  if (result == ReadResult::kMissing) PrintError(path, std::strerror(errno));
  listing->BeginFile(path);
  if (result != ReadResult::kDone) {
    listing->EndFile({}, false);
    return false;
  }
  Inspection inspection(image, listing);
  inspection.Run();
  const SettingsReader::Fault& damage = inspection.Damage();
  listing->EndFile(damage, inspection.IsRejected());
  if (damage.what) PrintDamage(path, damage.what, damage.offset);
  return !damage.what;
}

bool InspectFiles(const CommandLine& command, Listing* listing) {
  bool all_intact = true;
  for (const char* path : command.names) {
    all_intact = InspectFile(path, listing) && all_intact;
  }
  return all_intact;
}

}  // namespace

bool RunInspect(const CommandLine& command) {
  if (command.json) {
    JsonListing listing;
    return InspectFiles(command, &listing);
  }
  TextListing listing;
  return InspectFiles(command, &listing);
}
