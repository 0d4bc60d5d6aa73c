#include <algorithm>
#include <cinttypes>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/json.h"
#include "cli/plain_text.h"
#include "cli/store_view.h"
#include "cli/unknown_sites.h"
#include "model/storage_setting.h"
#include "platform/tree_size.h"
#include "strings/printable_text.h"
#include "strings/text_ids.h"

namespace {

// As the panel shows it, followed by the exact number unless it is the same.
std::string UsedText(std::uint64_t bytes) {
  std::string text = StorageSetting::TextOfSpace(static_cast<double>(bytes));
  return bytes < 1024 ? text : text + " (" + std::to_string(bytes) + ")";
}

// The state, followed for allowed storage by the limit.
std::string StateText(const PermissionSettings& settings, PermissionKind kind) {
  const PermissionChoice& choice = ChoiceOrBlock(settings.states[kind]);
  std::string text = TextOf(choice.site_text_id);
  if (kind != kStorage) return text;
  const double limit_kb = settings.storage_limit_kb;
  if (limit_kb > 0) {
    text += " (" + StorageSetting::TextOfSpace(limit_kb * 1024) + ")";
  }
  if (limit_kb == kUnlimited) text += " (∞)";
  return text;
}

void PrintGlobal(const PermissionSettings& global) {
  std::puts(TextOf(kPanelTitleId).c_str());
  TextTable table;
  for (const Permission& permission : kPermissions) {
    table.Add({"  " + TextOf(permission.global_title_id),
               StateText(global, permission.kind)});
  }
  table.Print();
}

TextTable::Row HeadOfSites(const std::string& title) {
  TextTable::Row head = {title, TextOf(kUsedSpaceColumnTitleId)};
  for (const Permission& permission : kPermissions) {
    head.push_back(TextOf(permission.site_title_id));
  }
  return head;
}

TextTable::Row RowOfSite(const SiteSettings& site) {
  TextTable::Row row = {"  " + Printable(site.name),
                        UsedText(site.storage_used_bytes)};
  for (const Permission& permission : kPermissions) {
    row.push_back(StateText(site.permissions, permission.kind));
  }
  return row;
}

void PrintSites(const std::vector<SiteSettings>& sites, bool are_listed,
                const std::string& title) {
  TextTable table;
  table.Add(HeadOfSites(title));
  for (const SiteSettings& site : sites) {
    if (site.is_listed == are_listed) table.Add(RowOfSite(site));
  }
  std::putchar('\n');
  table.Print();
}

void PrintLocations(const StoreView& store) {
  std::printf("\n%s\n", TextOf(kLocationColumnTitleId).c_str());
  for (const std::string& location : store.TrustedLocations()) {
    std::printf("  %s\n", Printable(location).c_str());
  }
}

void SetPermissions(const PermissionSettings& settings, json_t* object) {
  for (const Permission& permission : kPermissions) {
    const PermissionState state = settings.states[permission.kind];
    Set(object, permission.word, json_string(ChoiceOrBlock(state).word));
  }
  Set(object, "storage_limit_kb", NewShownNumber(settings.storage_limit_kb));
}

json_t* NewSite(const SiteSettings& site) {
  json_t* object = json_object();
  Set(object, "site", NewShownText(site.name));
  SetPermissions(site.permissions, object);
  Set(object, "storage_used_bytes",
      json_integer(static_cast<json_int_t>(site.storage_used_bytes)));
  Set(object, "damaged", json_boolean(!site.is_intact));
  Set(object, "listed", json_boolean(site.is_listed));
  return object;
}

json_t* NewGlobal(const StoreView& store) {
  json_t* global = json_object();
  SetPermissions(store.Global(), global);
  Set(global, "damaged", json_boolean(!store.IsIntact()));
  return global;
}

void PrintAsJson(json_t* value) {
  PrintJson(Json(value).get(), JSON_COMPACT, stdout);
}

// Site by site: one value that held all would be large.
void PrintStoreAsJson(const StoreView& store,
                      const std::vector<SiteSettings>& sites) {
  std::fputs("{\"global\":", stdout);
  PrintAsJson(NewGlobal(store));
  std::fputs(",\"sites\":[", stdout);
  for (const SiteSettings& site : sites) {
    if (&site != sites.data()) std::putchar(',');
    PrintAsJson(NewSite(site));
  }
  std::fputs("],\"trusted_locations\":", stdout);
  PrintAsJson(NewTexts(store.TrustedLocations(), NewShownText));
  std::puts("}");
}

bool HasUnlisted(const std::vector<SiteSettings>& sites) {
  return !std::ranges::all_of(sites, &SiteSettings::is_listed);
}

void PrintStoreAsText(const StoreView& store,
                      const std::vector<SiteSettings>& sites) {
  PrintGlobal(store.Global());
  PrintSites(sites, true, TextOf(kSiteColumnTitleId));
  if (HasUnlisted(sites)) PrintSites(sites, false, "Not listed");
  PrintLocations(store);
}

// What the user asked for.
struct Selection {
  // Sites; all when there are none.
  std::unordered_set<std::string_view> names;
  std::vector<PermissionChange> filters;

  [[nodiscard]] bool Includes(const std::string& site) const {
    return names.empty() || names.contains(site);
  }
  // A site must meet all conditions.
  [[nodiscard]] bool Includes(const SiteSettings& site) const {
    return std::ranges::all_of(filters, [&](const PermissionChange& filter) {
      return site.permissions.states[filter.permission->kind] == filter.state;
    });
  }
};

bool ParseSelection(const CommandLine& line, Selection* selection) {
  selection->names = {line.words.begin(), line.words.end()};
  for (const char* text : line.ArgumentsOf(kPermission)) {
    PermissionChange filter;
    if (!ParsePermission(text, Limits::kRefused, &filter)) return false;
    selection->filters.push_back(filter);
  }
  return true;
}

// The sites with these names.
std::vector<SiteSettings> ReadSites(const StoreView& store,
                                    const Selection& selection) {
  const SharedMeasurement measurement;
  std::vector<SiteSettings> sites;
  for (const std::string& name : store.PossibleSites()) {
    if (!selection.Includes(name)) continue;
    auto site = store.Read(name);
    if (site) sites.push_back(std::move(*site));
  }
  return sites;
}

// Reports the names of the command line that are not among the sites. How many
// there are.
std::size_t ReportUnknown(const CommandLine& line, const StoreView& store,
                          const std::vector<SiteSettings>& sites) {
  std::unordered_set<std::string_view> known;
  for (const SiteSettings& site : sites) known.insert(site.name);
  UnknownSites unknown(store);
  std::size_t count = 0;
  for (const char* name : line.words) {
    if (known.contains(name)) continue;
    unknown.Report(name);
    ++count;
  }
  return count;
}

bool CheckNames(const CommandLine& line) {
  if (!line.Has(kNames)) {
    return !line.Has(kNull) || Refuse("--null is for --names");
  }
  return (line.words.empty() && !line.Has(kJson) && !line.Has(kPermission)) ||
         Refuse("--names takes nothing but --null");
}

ExitStatus PrintNames(const StoreView& store, const CommandLine& line) {
  for (const std::string& site : store.ListedSites()) {
    if (!store.HasSettings(site.c_str())) continue;
    const bool is_raw = line.Has(kNull);
    const std::string text = is_raw ? site : Printable(site);
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::putchar(is_raw ? '\0' : '\n');
  }
  return store.IsIntact() ? kSuccess : kFailure;
}

}  // namespace

ExitStatus RunShow(const CommandLine& line) {
  Selection selection;
  if (!ParseSelection(line, &selection)) return kUsageError;
  if (!CheckNames(line)) return kUsageError;
  const StoreView store;
  const bool is_intact = store.ReportProblem();
  if (line.Has(kNames)) return PrintNames(store, line);
  const bool is_storage_known = store.ReportUnknownStorage();
  std::vector<SiteSettings> sites = ReadSites(store, selection);
  const std::size_t unknown = ReportUnknown(line, store, sites);
  if (unknown > 0 && unknown == line.words.size()) return kFailure;
  const bool are_intact = std::ranges::all_of(sites, &SiteSettings::is_intact);
  std::erase_if(sites, [&](const SiteSettings& site) {
    return !selection.Includes(site);
  });
  line.Has(kJson) ? PrintStoreAsJson(store, sites)
                  : PrintStoreAsText(store, sites);
  const bool is_whole = is_intact && is_storage_known && are_intact;
  return is_whole && unknown == 0 ? kSuccess : kFailure;
}
