// Settings images parsed and written, beside what else could hold the same.
#include <glib.h>

#include <cstring>
#include <memory>

#include "bench/bare_calls.h"
#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/private_home.h"
#include "settings/settings_aggregator.h"
#include "settings/settings_reader.h"
#include "settings/settings_writer.h"
#include "store/setting_keys.h"

using SASM::SettingsDictionary;
using SASM::SettingsManager;
using SMImplementation::SettingsReader;
using SMImplementation::SettingsWriter;

namespace {

constexpr std::size_t kImageCounts[] = {1000, 10000, 100000};
constexpr std::size_t kElementCounts[] = {10000, 100000, 1000000};

struct Entry {
  const char* key;
  SASM::_SettingsDataType type;
  double number;
};

// Ten, as a site's file and the master file have them.
constexpr Entry kEntries[] = {
    {"always", SASM::kSettingsDataTypeBool, 1},
    {"allow", SASM::kSettingsDataTypeBool, 0},
    {"klimit", SASM::kSettingsDataTypeDouble, 100},
    {"p2palways", SASM::kSettingsDataTypeBool, 1},
    {"p2pallow", SASM::kSettingsDataTypeBool, 0},
    {"crossdomainAllow", SASM::kSettingsDataTypeBool, 1},
    {"allowThirdPartyLSOAccess", SASM::kSettingsDataTypeBool, 1},
    {"secureCrossDomainCacheSize", SASM::kSettingsDataTypeDouble, -1},
    {"autoUpdateInterval", SASM::kSettingsDataTypeDouble, 14.5},
    {"language", SASM::kSettingsDataTypeString, 0},
};
constexpr char kText[] = "en_US.UTF-8";

bool IsBool(const Entry& entry) {
  return entry.type == SASM::kSettingsDataTypeBool;
}
bool IsNumber(const Entry& entry) {
  return entry.type == SASM::kSettingsDataTypeDouble;
}

std::string ElementName(std::size_t i) {
  return "site" + std::to_string(i) + ".example.com";
}

// --- The panel

// A store that holds the entries as the settings of one domain.
const SASM::SimpleString& Domain() {
  static const SASM::SimpleString domain("images.example.com");
  return domain;
}

void StoreEntries(SettingsManager* manager) {
  for (const Entry& entry : kEntries) {
    const bool boolean = entry.number != 0;
    const SASM::SimpleString text(kText);
    const void* data = IsBool(entry) ? static_cast<const void*>(&boolean)
                       : IsNumber(entry)
                           ? static_cast<const void*>(&entry.number)
                           : &text;
    SASM::SettingDataItem item(entry.key, entry.type, data);
    manager->SetSetting(&item, entry.key, Domain());
  }
}

void StoreElements(SettingsManager* manager, std::size_t count) {
  SASM::SDIVector array;
  const bool listed = true;
  for (std::size_t i = 0; i < count; ++i) {
    const SASM::SettingDataItem element(ElementName(i).c_str(),
                                        SASM::kSettingsDataTypeBool, &listed);
    array.addElement(&element);
  }
  SASM::SettingDataItem item(SASM::kDomains, SASM::kSettingsDataTypeArray,
                             &array);
  manager->SetSetting(&item, SASM::kDomains, Domain());
}

std::string WriteImage(SettingsManager* manager) {
  unsigned char* data = nullptr;
  unsigned long length = 0;
  SettingsWriter(manager, Domain())
      .GetNewSettingsWithName("settings", &data, length);
  const std::unique_ptr<unsigned char[]> owned(data);
  return {data, data + length};
}

void WriteAndDrop(SettingsManager* manager) {
  unsigned char* data = nullptr;
  unsigned long length = 0;
  SettingsWriter(manager, Domain())
      .GetNewSettingsWithName("settings", &data, length);
  Check(data, "write");
  delete[] data;
}

const unsigned char* Bytes(const std::string& image) {
  return static_cast<const unsigned char*>(
      static_cast<const void*>(image.data()));
}

void ParseImage(const std::string& image) {
  SASM::SimpleString* name = nullptr;
  const std::unique_ptr<SettingsDictionary> dictionary(
      SettingsReader(Bytes(image), image.size()).GetNewSettingsData(&name));
  delete name;
  Check(dictionary != nullptr, "parse");
}

// --- A bounds-checked walk that keeps nothing

class Walk {
 public:
  explicit Walk(const std::string& image)
      : next_(Bytes(image)), end_(next_ + image.size()) {}

  // True when the image is sound.
  bool Run() {
    const bool is_long = Number(2) % 64 == 63;
    if (!Skip(is_long ? 4 : 0) || !Skip(10) || !Skip(Number(2)) || !Skip(4)) {
      return false;
    }
    while (next_ < end_) {
      if (!Skip(Number(2)) || !SkipValue(Number(1)) || Number(1) != 0) {
        return false;
      }
    }
    return true;
  }

 private:
  bool SkipValue(std::size_t type) {
    if (type == SASM::kSettingsDataTypeDouble) return Skip(8);
    if (type == SASM::kSettingsDataTypeBool) return Skip(1);
    if (type == SASM::kSettingsDataTypeString) return Skip(Number(2));
    while (const std::size_t name_size = Number(2)) {
      if (!Skip(name_size) || !SkipValue(Number(1))) return false;
    }
    return Number(1) == 9;
  }

  bool Skip(std::size_t count) {
    if (static_cast<std::size_t>(end_ - next_) < count) return false;
    next_ += count;
    return true;
  }

  std::size_t Number(std::size_t size) {
    const unsigned char* bytes = next_;
    if (!Skip(size)) return 0;
    return size == 1 ? bytes[0] : std::size_t{bytes[0]} << 8 | bytes[1];
  }

  const unsigned char* next_;
  const unsigned char* end_;
};

// --- GLib

GVariant* NewVariant(std::size_t elements) {
  GVariantBuilder builder;
  g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
  for (std::size_t i = 0; i < elements; ++i) {
    g_variant_builder_add(&builder, "{sv}", ElementName(i).c_str(),
                          g_variant_new_boolean(TRUE));
  }
  for (const Entry& entry : kEntries) {
    if (elements > 0) break;
    GVariant* value = IsBool(entry) ? g_variant_new_boolean(entry.number != 0)
                      : IsNumber(entry) ? g_variant_new_double(entry.number)
                                        : g_variant_new_string(kText);
    g_variant_builder_add(&builder, "{sv}", entry.key, value);
  }
  return g_variant_ref_sink(g_variant_builder_end(&builder));
}

std::string VariantImage(std::size_t elements) {
  GVariant* variant = NewVariant(elements);
  const auto* data = static_cast<const char*>(g_variant_get_data(variant));
  std::string image(data, g_variant_get_size(variant));
  g_variant_unref(variant);
  return image;
}

// Into a dictionary by key, as the panel's. Untrusted images of that many
// elements take GLib minutes.
void ParseVariant(const std::string& image) {
  constexpr gboolean kIsTrusted = TRUE;
  GVariant* variant = g_variant_ref_sink(
      g_variant_new_from_data(G_VARIANT_TYPE_VARDICT, image.data(),
                              image.size(), kIsTrusted, nullptr, nullptr));
  GVariantDict dictionary;
  g_variant_dict_init(&dictionary, variant);
  g_variant_dict_clear(&dictionary);
  g_variant_unref(variant);
}

std::string KeyFileImage(std::size_t elements) {
  std::string text = "[settings]\n";
  for (std::size_t i = 0; i < elements; ++i) {
    text += ElementName(i) + "=true\n";
  }
  for (const Entry& entry : kEntries) {
    if (elements > 0) break;
    text += entry.key;
    text += IsBool(entry)     ? (entry.number != 0 ? "=true\n" : "=false\n")
            : IsNumber(entry) ? "=" + std::to_string(entry.number) + "\n"
                              : std::string("=") + kText + "\n";
  }
  return text;
}

void ParseKeyFile(const std::string& text) {
  GKeyFile* file = g_key_file_new();
  Check(g_key_file_load_from_data(file, text.data(), text.size(),
                                  G_KEY_FILE_NONE, nullptr),
        "GKeyFile");
  g_key_file_free(file);
}

// key=value lines into a growing text.
void WriteText(std::size_t elements) {
  GString* text = g_string_new("[settings]\n");
  for (std::size_t i = 0; i < elements; ++i) {
    g_string_append_printf(text, "site%zu.example.com=true\n", i);
  }
  for (const Entry& entry : kEntries) {
    if (elements > 0) break;
    if (IsBool(entry)) {
      g_string_append_printf(text, "%s=%s\n", entry.key,
                             entry.number != 0 ? "true" : "false");
    } else if (IsNumber(entry)) {
      g_string_append_printf(text, "%s=%g\n", entry.key, entry.number);
    } else {
      g_string_append_printf(text, "%s=%s\n", entry.key, kText);
    }
  }
  g_string_free(text, TRUE);
}

// --- Subjects

// `images` times one of `elements` elements, or of the ten entries for 0.
struct Load {
  const char* what;
  std::size_t size;
  std::size_t images;
  std::size_t elements;
};

std::function<void()> Times(std::size_t count, std::function<void()> run) {
  return [count, run = std::move(run)] {
    for (std::size_t i = 0; i < count; ++i) run();
  };
}

void MeasureLoad(const Load& load, SettingsManager* manager) {
  const std::string image = WriteImage(manager);
  const std::string variant = VariantImage(load.elements);
  const std::string key_file = KeyFileImage(load.elements);
  const auto times = [&](std::function<void()> run) {
    return Times(load.images, std::move(run));
  };
  const std::string what = load.what;
  const int rounds = load.size >= 100000 ? 3 : 5;
  Measure({"parsed: " + what, load.size, rounds},
          {{kPanel, times([&] { ParseImage(image); })},
           {kFloor, times([&] { Check(Walk(image).Run(), "walk"); })},
           {"GVariant", times([&] { ParseVariant(variant); })},
           {"GKeyFile", times([&] { ParseKeyFile(key_file); })}});
  std::string copy(image.size(), '\0');
  Measure({"written: " + what, load.size, rounds},
          {{kPanel, times([&] { WriteAndDrop(manager); })},
           {kFloor, times([&] {
              std::memcpy(copy.data(), image.data(), image.size());
              asm volatile("" : : "r"(copy.data()) : "memory");
            })},
           {"GVariantBuilder", times([&] {
              GVariant* built = NewVariant(load.elements);
              (void)g_variant_get_data(built);
              g_variant_unref(built);
            })},
           {"key=value text", times([&] { WriteText(load.elements); })}});
}

void MeasureTypicalFile(const PrivateHome& home) {
  const std::string& site = home.Sites()[0];
  const std::string image = PrivateHome::SiteImage(site);
  std::vector<char> buffer(65536);
  constexpr std::size_t kTimes = 10000;
  Measure({"parsed: a typical file 10,000 times", 1},
          {{kPanel, Times(kTimes, [&] { ParseImage(image); })},
           {"its open+read+close", Times(kTimes, [&] {
              ReadFile(home.FileOf(site).c_str(), &buffer);
            })}});
}

}  // namespace

int main() {
  PrivateHome home;
  home.MakeSites(1, false);
  OpenFreshStore();
  SettingsManager* manager = SettingBase::mSettingsManager;
  MeasureTypicalFile(home);
  StoreEntries(manager);
  for (const std::size_t count : kImageCounts) {
    MeasureLoad({"images of 10 entries", count, count, 0}, manager);
  }
  for (const Entry& entry : kEntries) {
    manager->RemoveSettingWithKey(entry.key, Domain());
  }
  for (const std::size_t count : kElementCounts) {
    StoreElements(manager, count);
    MeasureLoad({"one array of elements", count, 1, count}, manager);
  }
}
