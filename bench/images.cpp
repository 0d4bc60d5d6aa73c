// Settings images parsed and written, beside what else could hold the same.
#include <glib.h>

#include <cstring>
#include <memory>

#include "bench/fresh_store.h"
#include "bench/harness.h"
#include "bench/site_home.h"
#include "settings/settings_reader.h"
#include "settings/settings_writer.h"
#include "store/setting_keys.h"
#include "tests/support/settings_image.h"

using SASM::SettingsDictionary;
using SASM::SettingsManager;
using SMImplementation::SettingsReader;
using SMImplementation::SettingsWriter;

namespace {

constexpr std::size_t kImages = 10000;
constexpr std::size_t kElementCounts[] = {10000, 100000};

// --- The panel

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

void WriteImage(const std::string& domain) {
  unsigned char* data = nullptr;
  unsigned long length = 0;
  SettingsWriter(SettingBase::mSettingsManager, domain.c_str())
      .GetNewSettingsWithName("settings", &data, length);
  Check(data, "write");
  delete[] data;
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

using Keys = std::vector<std::string>;

GVariant* NewVariant(const Keys& keys) {
  GVariantBuilder builder;
  g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
  for (const std::string& key : keys) {
    g_variant_builder_add(&builder, "{sv}", key.c_str(),
                          g_variant_new_boolean(TRUE));
  }
  GVariant* variant = g_variant_ref_sink(g_variant_builder_end(&builder));
  (void)g_variant_get_data(variant);  // made when it is first asked for
  return variant;
}

// Into a dictionary by key, as the panel's. Untrusted images of that many
// elements take GLib minutes.
void ParseVariant(GVariant* image) {
  constexpr gboolean kIsTrusted = TRUE;
  GVariant* variant = g_variant_ref_sink(g_variant_new_from_data(
      G_VARIANT_TYPE_VARDICT, g_variant_get_data(image),
      g_variant_get_size(image), kIsTrusted, nullptr, nullptr));
  GVariantDict dictionary;
  g_variant_dict_init(&dictionary, variant);
  g_variant_dict_clear(&dictionary);
  g_variant_unref(variant);
}

void ParseKeyFile(const std::string& text) {
  GKeyFile* file = g_key_file_new();
  Check(g_key_file_load_from_data(file, text.data(), text.size(),
                                  G_KEY_FILE_NONE, nullptr),
        "GKeyFile");
  g_key_file_free(file);
}

// --- Subjects

// `images` times an image, which the store holds as that domain's; with GLib
// the image has these keys.
struct Load {
  std::string name;
  std::size_t size;
  std::size_t images;
  std::string domain;
  std::string image;
  Keys keys;
};

void MeasureLoad(const Load& load) {
  GVariant* variant = NewVariant(load.keys);
  std::string key_file = "[settings]\n";
  for (const std::string& key : load.keys) key_file += key + "=true\n";
  const auto times = [&](std::function<void()> run) {
    return Times(load.images, std::move(run));
  };
  Measure({load.name + " parsed", load.size},
          {{kPanel, times([&] { ParseImage(load.image); })},
           {kFloor, times([&] { Check(Walk(load.image).Run(), "walk"); })},
           {"GVariant", times([&] { ParseVariant(variant); })},
           {"GKeyFile", times([&] { ParseKeyFile(key_file); })}});
  g_variant_unref(variant);
  std::string copy(load.image.size(), '\0');
  const auto write = times([&] { WriteImage(load.domain); });
  const auto copy_bytes = times([&] {
    std::memcpy(copy.data(), load.image.data(), load.image.size());
    asm volatile("" : : "r"(copy.data()) : "memory");
  });
  // Each once before, so that it finds its memory in the processor's cache.
  Measure(
      {load.name + " written", load.size},
      {{kPanel, write, write},
       {kFloor, copy_bytes, copy_bytes},
       {"GVariant", times([&] { g_variant_unref(NewVariant(load.keys)); })}});
}

}  // namespace

int main() {
  SiteHome home;
  home.MakeSites(1);
  OpenFreshStore();
  const std::string& site = home.Sites()[0];
  MeasureLoad({"a site's image",
               kImages,
               kImages,
               site,
               image::DefaultSiteFile(site),
               {SASM::kCameraAlways, SASM::kCameraAllow, SASM::kP2PAlways,
                SASM::kP2PAllow, SASM::kStorageLimit}});
  for (const std::size_t count : kElementCounts) {
    home.MakeSites(count);
    OpenFreshStore();
    MeasureLoad({"a list of sites", count, 1,
                 SettingsManager::MasterDomain().c_str(), home.MasterImage(),
                 home.Sites()});
  }
}
