// A document of settings: any text, and what is made of an image.
#include <bit>
#include <cmath>
#include <memory>
#include <string>

#include "cli/document.h"
#include "cli/settings_edit.h"
#include "fuzz/fuzz_target.h"
#include "settings/settings_reader.h"

using SASM::SettingsDictionary;

namespace {

// Null for an image that is damaged.
std::unique_ptr<SettingsDictionary> Read(const std::uint8_t* data,
                                         std::size_t size) {
  SMImplementation::SettingsReader reader(data, size);
  reader.KeepQuiet();
  SASM::SimpleString* name = nullptr;
  std::unique_ptr<SettingsDictionary> dictionary(
      reader.GetNewSettingsData(&name));
  delete name;
  return reader.TakeFault().what ? nullptr : std::move(dictionary);
}

std::string Print(const json_t* value) {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* file = open_memstream(&text, &size);
  PrintJson(value, 0, file);
  std::fclose(file);
  std::string printed(text, size);
  std::free(text);
  return printed;
}

std::string DocumentOf(const SettingsDictionary& settings) {
  json_t* site = json_object();
  Set(site, "site", NewText("a"));
  Set(site, "settings", NewEntries(settings, {}));
  json_t* sites = json_array();
  json_array_append_new(sites, site);
  const Json document(json_object());
  Set(document.get(), "format", json_string(kDocumentFormat));
  Set(document.get(), "sites", sites);
  return Print(document.get());
}

void CarriesAll(const SettingsDictionary& settings) {
  const std::string text = DocumentOf(settings);
  for (const char c : text) {
    Require(c >= ' ' && c <= '~', "a document is printable");
  }
  Document document;
  std::string problem;
  Require(ParseDocument(text, &document, &problem), "a document is accepted");
  std::size_t count = 0;
  for (const auto& entry : settings) {
    ++count;
    bool is_carried = false;
    for (const auto& carried : document.sites->front().settings) {
      is_carried |= carried.name == entry.key && AreEqual(carried, entry.value);
    }
    Require(is_carried, "each entry is carried, bit by bit");
  }
  Require(count == document.sites->front().settings.size(), "and no other");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  static const bool is_prepared = (PrepareJson(), true);
  (void)is_prepared;
  Document document;
  std::string problem;
  const std::string text(data, data + size);
  const bool is_accepted = ParseDocument(text, &document, &problem);
  Require(is_accepted == problem.empty(), "a refusal has a reason");
  if (const auto settings = Read(data, size)) CarriesAll(*settings);
  return 0;
}
