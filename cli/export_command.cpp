#include <algorithm>
#include <cerrno>
#include <cstring>

#include "cli/commands.h"
#include "cli/document.h"
#include "cli/error_messages.h"
#include "cli/near_names.h"
#include "cli/store_view.h"
#include "cli/trusted_locations.h"
#include "platform/linux_file_manager.h"
#include "store/setting_keys.h"
#include "store/stored_sites.h"

namespace {

// Null when the file is missing or damaged; the latter is reported.
json_t* NewSite(const std::string& name, const StoreView& store,
                bool* all_intact) {
  const SASM::SimpleString file = store.Layout().SettingsFileOf(name.c_str());
  const SettingsOnDisk on_disk = ReadSettings(file);
  if (on_disk.problem.Exists()) {
    PrintProblem(file.c_str(), on_disk.problem);
    *all_intact = false;
  }
  if (!on_disk.IsIntact()) return nullptr;
  json_t* site = json_object();
  Set(site, "site", NewText(name));
  if (!store.IsListed(name)) Set(site, "listed", json_false());
  Set(site, "settings", NewEntries(*on_disk.dictionary, {}));
  return site;
}

// Also those whose files are damaged.
std::vector<std::string> AllSites(const StoreView& store) {
  std::vector<std::string> sites = store.KnownSites();
  const auto on_disk = SASM::SitesWithSettingsFile(store.Layout());
  sites.insert(sites.end(), on_disk.begin(), on_disk.end());
  std::ranges::sort(sites);
  sites.erase(std::unique(sites.begin(), sites.end()), sites.end());
  return sites;
}

// Reports the names of `wanted` that are not among the sites.
bool AreThere(const std::vector<const char*>& wanted,
              const std::vector<std::string>& sites) {
  bool are_there = true;
  for (const char* name : wanted) {
    if (std::ranges::binary_search(sites, name)) continue;
    PrintError(name, "no such site" + SuggestSites(name, sites));
    are_there = false;
  }
  return are_there;
}

json_t* NewLocations(const StoreView& store) {
  json_t* array = json_array();
  for (const std::string& name : NamesIn(store.TrustedLocations())) {
    json_array_append_new(array, NewText(name));
  }
  return array;
}

// Null when something is damaged or unknown, which is reported.
Json NewDocument(const CommandLine& line, const StoreView& store) {
  std::vector<std::string> sites = AllSites(store);
  bool is_whole = AreThere(line.words, sites);
  if (!line.words.empty()) {
    std::erase_if(sites, [&](const std::string& site) {
      return std::ranges::count(line.words, site) == 0;
    });
  }
  json_t* array = json_array();
  for (const std::string& name : sites) {
    json_t* site = NewSite(name, store, &is_whole);
    if (site) json_array_append_new(array, site);
  }
  Json document(json_object());
  Set(document.get(), "format", json_string(kDocumentFormat));
  if (line.words.empty()) {
    Set(document.get(), "global",
        NewEntries(store.Master(), {SASM::kDomains, SASM::kTrustedPaths}));
    Set(document.get(), "trusted_locations", NewLocations(store));
  }
  Set(document.get(), "sites", array);
  return is_whole ? std::move(document) : nullptr;
}

bool Print(const json_t* document, std::FILE* output) {
  PrintJson(document, JSON_INDENT(1), output);
  std::fputc('\n', output);
  return std::fflush(output) == 0 && std::ferror(output) == 0;
}

bool WriteFile(const json_t* document, const char* path) {
  std::FILE* file = std::fopen(path, "we");
  bool is_written = file && Print(document, file);
  if (file) is_written = std::fclose(file) == 0 && is_written;
  if (!is_written) PrintError(path, std::strerror(errno));
  return is_written;
}

}  // namespace

ExitStatus RunExport(const CommandLine& line) {
  const std::vector<const char*> outputs = line.ArgumentsOf(kOutput);
  if (outputs.size() > 1) {
    return PrintUsageError("more than one file to write: ", outputs[1]);
  }
  const LinuxFileManager files;
  const StoreView store(files);
  if (!store.ReportProblem()) return kFailure;
  const Json document = NewDocument(line, store);
  if (!document) return kFailure;
  if (!outputs.empty()) {
    return WriteFile(document.get(), outputs[0]) ? kSuccess : kFailure;
  }
  (void)Print(document.get(), stdout);  // main reports a failure
  return kSuccess;
}
