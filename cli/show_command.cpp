#include <algorithm>
#include <cinttypes>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/json_writer.h"
#include "cli/plain_text.h"
#include "cli/store_view.h"
#include "model/storage_setting.h"
#include "platform/linux_file_manager.h"
#include "strings/string_manager.h"

using SASM::SDIVector;
using SASM::SimpleString;

namespace {

// Ids of texts.
constexpr int kPanelTitle = 11400;
constexpr int kWebsiteTitle = 61000;
constexpr int kStorageUsedTitle = 61004;
constexpr int kLocationsTitle = 81003;

struct SiteRow {
  const SimpleString* name;
  SiteSettings settings;
};

std::string TextOf(StringManager* strings, int id) {
  const char* text = strings->GetString(id);
  return text ? text : "";
}

std::string SizeText(double bytes) {
  char text[StorageSetting::kSpaceTextSize];
  StorageSetting::FormatSpace(bytes, text, sizeof text);
  return text;
}

// As the panel shows it, followed by the exact number unless it is the same.
std::string UsedText(std::uint64_t bytes) {
  std::string text = SizeText(static_cast<double>(bytes));
  return bytes < 1024 ? text : text + " (" + std::to_string(bytes) + ")";
}

// The state, followed for allowed storage by the limit.
std::string StateText(const PermissionStates& states, PermissionKind permission,
                      double storage_limit_kb, StringManager* strings) {
  std::string text =
      TextOf(strings, FindChoice(states[permission])->site_text_id);
  if (permission != kStorage) return text;
  if (storage_limit_kb > 0) {
    text += " (" + SizeText(storage_limit_kb * 1024) + ")";
  } else if (storage_limit_kb == kUnlimited) {
    text += " (∞)";
  }
  return text;
}

void PrintGlobal(const GlobalSettings& global, StringManager* strings) {
  std::puts(TextOf(strings, kPanelTitle).c_str());
  TextTable table;
  for (const Permission& permission : kPermissions) {
    table.Add({"  " + TextOf(strings, permission.global_title_id),
               StateText(global.states, permission.kind,
                         global.storage_limit_kb, strings)});
  }
  table.Print();
}

void PrintSites(const std::vector<SiteRow>& sites, StringManager* strings) {
  TextTable table;
  TextTable::Row head = {TextOf(strings, kWebsiteTitle),
                         TextOf(strings, kStorageUsedTitle)};
  for (const Permission& permission : kPermissions) {
    head.push_back(TextOf(strings, permission.site_title_id));
  }
  table.Add(std::move(head));
  for (const SiteRow& site : sites) {
    TextTable::Row row = {"  " + Printable(site.name->c_str()),
                          UsedText(site.settings.storage_used_bytes)};
    for (const Permission& permission : kPermissions) {
      row.push_back(StateText(site.settings.states, permission.kind,
                              site.settings.storage_limit_kb, strings));
    }
    table.Add(std::move(row));
  }
  std::putchar('\n');
  table.Print();
}

void PrintLocations(const SDIVector* locations, StringManager* strings) {
  std::printf("\n%s\n", TextOf(strings, kLocationsTitle).c_str());
  for (unsigned int i = 0; locations && i < locations->count; ++i) {
    std::printf("  %s\n", Printable(locations->At(i)->name.c_str()).c_str());
  }
}

void WriteStates(const PermissionStates& states, double storage_limit_kb,
                 JsonWriter* json) {
  for (const Permission& permission : kPermissions) {
    const PermissionState state = states[permission.kind];
    json->Key(permission.word).Text(FindChoice(state)->word);
  }
  json->Key("storage_limit_kb").Number(storage_limit_kb);
}

void WriteSite(const SiteRow& site, JsonWriter* json) {
  json->BeginObject();
  json->Key("site").Text(site.name->c_str());
  WriteStates(site.settings.states, site.settings.storage_limit_kb, json);
  json->Key("storage_used_bytes").Integer(site.settings.storage_used_bytes);
  json->Key("damaged").Boolean(!site.settings.is_intact);
  json->EndObject();
}

void WriteStore(const StoreView& store, const std::vector<SiteRow>& sites) {
  JsonWriter json;
  json.BeginObject();
  const GlobalSettings global = store.Global();
  json.Key("global").BeginObject();
  WriteStates(global.states, global.storage_limit_kb, &json);
  json.Key("damaged").Boolean(!store.IsIntact());
  json.EndObject();
  json.Key("sites").BeginArray();
  for (const SiteRow& site : sites) WriteSite(site, &json);
  json.EndArray();
  json.Key("trusted_locations").BeginArray();
  const SDIVector* locations = store.TrustedLocations();
  for (unsigned int i = 0; locations && i < locations->count; ++i) {
    json.Text(locations->At(i)->name.c_str());
  }
  json.EndArray();
  json.EndObject();
  JsonWriter::EndLine();
}

bool Passes(const PermissionStates& states, const CommandLine& command) {
  return std::ranges::all_of(command.filters,
                             [&states](const PermissionFilter& filter) {
                               return states[filter.permission] == filter.state;
                             });
}

// The sites that the panel would show and the user asked for. When one is
// damaged or unknown, reports it and sets `*succeeded` to false.
std::vector<SiteRow> FindSites(const StoreView& store,
                               const CommandLine& command, bool* succeeded) {
  std::vector<SiteRow> sites;
  std::vector<bool> is_found(command.names.size());
  const SDIVector* listed = store.ListedSites();
  for (unsigned int i = 0; listed && i < listed->count; ++i) {
    const SimpleString& name = listed->At(i)->name;
    if (!store.IsKnown(name)) continue;
    bool is_wanted = command.names.empty();
    for (std::size_t k = 0; k < command.names.size(); ++k) {
      if (!(name == command.names[k])) continue;
      is_wanted = is_found[k] = true;
    }
    if (!is_wanted) continue;
    const SiteSettings settings = store.Read(name);
    *succeeded = *succeeded && settings.is_intact;
    if (Passes(settings.states, command)) sites.push_back({&name, settings});
  }
  for (std::size_t k = 0; k < command.names.size(); ++k) {
    if (is_found[k]) continue;
    PrintError(command.names[k], "no such site");
    *succeeded = false;
  }
  return sites;
}

}  // namespace

bool RunShow(const CommandLine& command) {
  const LinuxFileManager files;
  const StoreView store(files);
  bool succeeded = store.IsIntact();
  const std::vector<SiteRow> sites = FindSites(store, command, &succeeded);
  if (command.json) {
    WriteStore(store, sites);
    return succeeded;
  }
  StringManager strings;
  PrintGlobal(store.Global(), &strings);
  PrintSites(sites, &strings);
  PrintLocations(store.TrustedLocations(), &strings);
  return succeeded;
}
