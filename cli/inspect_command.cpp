#include <cinttypes>
#include <cstdio>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/json.h"
#include "cli/plain_text.h"
#include "cli/settings_source.h"
#include "platform/linux_file_manager.h"
#include "settings/settings_reader.h"
#include "store/store_layout.h"
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
  // In the place of the other calls for a file that cannot be read.
  virtual void FailFile(const std::string& error) = 0;
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
  void FailFile(const std::string&) override {}

 private:
  // Elements of an array have no offset and are indented.
  static void PrintItem(const std::string& offset,
                        const SettingDataItem& item) {
    const bool is_scalar = item.type < SASM::kSettingsDataTypeArray;
    const std::string value =
        is_scalar ? " = " + ValueText(item, std::string::npos) : "";
    std::printf("%10s  %-7s  %s%s%s\n", offset.c_str(), TypeWord(item),
                offset.empty() ? "  " : "",
                Printable(item.name.c_str()).c_str(), value.c_str());
  }

  static void PrintFault(const SettingsReader::Fault& fault) {
    std::printf("%10" PRIu64 "  damage   %s\n", fault.offset, fault.what);
  }
};

// Prints entry by entry, so that memory does not grow with the file.
class JsonListing : public Listing {
 public:
  JsonListing() { std::putchar('['); }
  ~JsonListing() override { std::puts("]"); }
  JsonListing(const JsonListing&) = delete;
  JsonListing& operator=(const JsonListing&) = delete;

  void BeginFile(const char* path) override {
    std::fputs(std::exchange(separator_, ",{"), stdout);
    PrintMember("file", NewShownText(path));
  }
  void Name(const char* name) override {
    std::putchar(',');
    PrintMember("name", NewShownText(name));
    std::fputs(",\"entries\":[", stdout);
    has_entries_ = true;
    entry_separator_ = "";
  }
  void Entry(const SettingDataItem& entry, std::uint64_t offset,
             const SettingsReader::Fault& fault) override {
    const Json object(json_object());
    Set(object.get(), "offset", json_integer(static_cast<json_int_t>(offset)));
    SetItem("key", entry, object.get());
    if (fault.what) Set(object.get(), "damage", NewFault(fault));
    std::fputs(std::exchange(entry_separator_, ","), stdout);
    PrintJson(object.get(), JSON_COMPACT, stdout);
  }
  void EndFile(const SettingsReader::Fault& damage, bool) override {
    EndEntries();
    if (damage.what) {
      std::putchar(',');
      PrintMember("damage", NewFault(damage));
    }
    std::putchar('}');
  }
  void FailFile(const std::string& error) override {
    std::putchar(',');
    PrintMember("error", NewShownText(error));
    std::putchar('}');
  }

 private:
  // Without the brackets around it. Takes over `value`.
  static void PrintMember(const char* key, json_t* value) {
    const Json object(json_object());
    Set(object.get(), key, value);
    PrintJson(object.get(), JSON_COMPACT | JSON_EMBED, stdout);
  }

  void EndEntries() {
    if (std::exchange(has_entries_, false)) std::putchar(']');
  }

  static void SetItem(const char* name_key, const SettingDataItem& item,
                      json_t* object) {
    Set(object, name_key, NewShownText(item.name.c_str()));
    Set(object, "type", json_string(TypeWord(item)));
    if (json_t* value = NewValue(item)) Set(object, "value", value);
  }

  // Null for an unknown type.
  static json_t* NewValue(const SettingDataItem& item) {
    switch (item.type) {
      case SASM::kSettingsDataTypeDouble:
        return NewShownNumber(item.value.number);
      case SASM::kSettingsDataTypeBool:
        return json_boolean(item.value.boolean);
      case SASM::kSettingsDataTypeString:
        return NewShownText(item.value.string->c_str());
      case SASM::kSettingsDataTypeArray:
        return NewElements(*item.value.array);
    }
    return nullptr;
  }

  static json_t* NewElements(const SASM::SDIVector& elements) {
    json_t* array = json_array();
    for (unsigned int i = 0; i < elements.count; ++i) {
      json_t* object = json_object();
      SetItem("name", *elements.At(i), object);
      json_array_append_new(array, object);
    }
    return array;
  }

  static json_t* NewFault(const SettingsReader::Fault& fault) {
    json_t* object = json_object();
    Set(object, "what", json_string(fault.what));
    Set(object, "offset", json_integer(static_cast<json_int_t>(fault.offset)));
    return object;
  }

  const char* separator_ = "{";
  const char* entry_separator_ = "";
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
  FileProblem problem;
  const ReadResult result = ReadImage(path, &image, &problem);
  listing->BeginFile(path);
  if (result != ReadResult::kDone) {
    PrintProblem(path, problem);
    listing->FailFile(problem.text);
    return false;
  }
  Inspection inspection(image, listing);
  inspection.Run();
  const SettingsReader::Fault& damage = inspection.Damage();
  listing->EndFile(damage, inspection.IsRejected());
  if (damage.what) PrintProblem(path, {damage.what, damage.offset});
  return !damage.what;
}

bool InspectFiles(const std::vector<SimpleString>& files, Listing* listing) {
  bool all_intact = true;
  for (const SimpleString& path : files) {
    all_intact = InspectFile(path.c_str(), listing) && all_intact;
  }
  return all_intact;
}

// The words are files or, behind --site, sites. False when one can be no site.
bool FindFiles(const CommandLine& line, std::vector<SimpleString>* paths) {
  if (!line.Has(kSite) && !line.Has(kGlobal)) {
    paths->assign(line.words.begin(), line.words.end());
    return true;
  }
  const LinuxFileManager files;
  const SASM::StoreLayout layout(&files);
  std::vector<SimpleString> domains;
  if (line.Has(kGlobal)) domains.push_back(SASM::MasterDomainName());
  for (const char* site : line.ArgumentsOf(kSite)) domains.emplace_back(site);
  for (const char* site : line.words) domains.emplace_back(site);
  bool found_all = true;
  for (const SimpleString& domain : domains) {
    paths->push_back(layout.SettingsFileOf(domain));
    if (!paths->back().IsEmpty()) continue;
    PrintError(domain.c_str(), "no such site");
    paths->pop_back();
    found_all = false;
  }
  return found_all;
}

}  // namespace

ExitStatus RunInspect(const CommandLine& line) {
  if (line.Has(kGlobal) && !line.words.empty() && !line.Has(kSite)) {
    return PrintUsageError("unexpected argument: ", line.words[0]);
  }
  if (line.words.empty() && line.options.size() == line.Has(kJson)) {
    return PrintUsageError("a file is missing");
  }
  std::vector<SimpleString> files;
  const bool found_all = FindFiles(line, &files);
  std::unique_ptr<Listing> listing;
  if (line.Has(kJson)) {
    listing = std::make_unique<JsonListing>();
  } else {
    listing = std::make_unique<TextListing>();
  }
  return InspectFiles(files, listing.get()) && found_all ? kSuccess : kFailure;
}
