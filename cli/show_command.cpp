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
#include "strings/printable_text.h"
#include "strings/string_manager.h"

using SASM::SDIVector;
using SASM::SimpleString;

namespace {

// Ids of texts.
constexpr int kPanelTitle = 11400;
constexpr int kWebsiteTitle = 61000;
constexpr int kStorageUsedTitle = 61004;
constexpr int kLocationsTitle = 81003;

std::string TextOf(StringManager* strings, int id) {
  const char* text = strings->GetString(id);
  return text ? text : "";
}

// As the panel shows it, followed by the exact number unless it is the same.
std::string UsedText(std::uint64_t bytes) {
  std::string text = StorageSetting::TextOfSpace(static_cast<double>(bytes));
  return bytes < 1024 ? text : text + " (" + std::to_string(bytes) + ")";
}

// The state, followed for allowed storage by the limit.
std::string StateText(const PermissionSettings& settings, PermissionKind kind,
                      StringManager* strings) {
  const PermissionChoice* choice = FindChoice(settings.states[kind]);
  std::string text = TextOf(strings, choice->site_text_id);
  if (kind != kStorage) return text;
  const double limit_kb = settings.storage_limit_kb;
  if (limit_kb > 0)
    text += " (" + StorageSetting::TextOfSpace(limit_kb * 1024) + ")";
  if (limit_kb == kUnlimited) text += " (∞)";
  return text;
}

void PrintGlobal(const PermissionSettings& global, StringManager* strings) {
  std::puts(TextOf(strings, kPanelTitle).c_str());
  TextTable table;
  for (const Permission& permission : kPermissions) {
    table.Add({"  " + TextOf(strings, permission.global_title_id),
               StateText(global, permission.kind, strings)});
  }
  table.Print();
}

void PrintSites(const std::vector<SiteSettings>& sites,
                StringManager* strings) {
  TextTable table;
  TextTable::Row head = {TextOf(strings, kWebsiteTitle),
                         TextOf(strings, kStorageUsedTitle)};
  for (const Permission& permission : kPermissions) {
    head.push_back(TextOf(strings, permission.site_title_id));
  }
  table.Add(std::move(head));
  for (const SiteSettings& site : sites) {
    TextTable::Row row = {"  " + Printable(site.name),
                          UsedText(site.storage_used_bytes)};
    for (const Permission& permission : kPermissions) {
      row.push_back(StateText(site.permissions, permission.kind, strings));
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

void WritePermissions(const PermissionSettings& settings, JsonWriter* json) {
  for (const Permission& permission : kPermissions) {
    const PermissionState state = settings.states[permission.kind];
    json->Key(permission.word).Text(FindChoice(state)->word);
  }
  json->Key("storage_limit_kb").Number(settings.storage_limit_kb);
}

void WriteSite(const SiteSettings& site, JsonWriter* json) {
  json->BeginObject();
  json->Key("site").Text(site.name);
  WritePermissions(site.permissions, json);
  json->Key("storage_used_bytes").Integer(site.storage_used_bytes);
  json->Key("damaged").Boolean(!site.is_intact);
  json->EndObject();
}

void WriteStore(const StoreView& store,
                const std::vector<SiteSettings>& sites) {
  JsonWriter json;
  json.BeginObject();
  json.Key("global").BeginObject();
  WritePermissions(store.Global(), &json);
  json.Key("damaged").Boolean(!store.IsIntact());
  json.EndObject();
  json.Key("sites").BeginArray();
  for (const SiteSettings& site : sites) WriteSite(site, &json);
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

bool Passes(const SiteSettings& site, const CommandLine& command) {
  return std::ranges::all_of(
      command.filters, [&site](const PermissionFilter& filter) {
        return site.permissions.states[filter.permission] == filter.state;
      });
}

// The sites that the panel would show and the user asked for. When one is
// damaged or unknown, reports it and sets `*succeeded` to false.
std::vector<SiteSettings> FindSites(const StoreView& store,
                                    const CommandLine& command,
                                    bool* succeeded) {
  std::vector<SiteSettings> sites;
  std::vector<bool> is_found(command.names.size());
  const SDIVector* listed = store.ListedSites();
  for (unsigned int i = 0; listed && i < listed->count; ++i) {
    const SimpleString& name = listed->At(i)->name;
    if (!store.HasSettings(name)) continue;
    bool is_wanted = command.names.empty();
    for (std::size_t k = 0; k < command.names.size(); ++k) {
      if (!(name == command.names[k])) continue;
      is_wanted = is_found[k] = true;
    }
    if (!is_wanted) continue;
    const SiteSettings site = store.Read(name);
    *succeeded = *succeeded && site.is_intact;
    if (Passes(site, command)) sites.push_back(site);
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
  const std::vector<SiteSettings> sites = FindSites(store, command, &succeeded);
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
