#include <cerrno>
#include <cstring>
#include <set>

#include "cli/commands.h"
#include "cli/document.h"
#include "cli/error_messages.h"
#include "cli/store_view.h"
#include "cli/unknown_sites.h"

namespace {

class ExportCommand {
 public:
  explicit ExportCommand(const CommandLine& line)
      : line_(line), unknown_(store_) {}

  // Null when something is damaged or unknown, which is reported.
  Json NewDocument() {
    if (!store_.ReportProblem()) return nullptr;
    Json document(json_object());
    Set(document.get(), "format", json_string(kDocumentFormat));
    if (line_.words.empty()) {
      Set(document.get(), "global",
          NewEntries(store_.Master(), kKeysWithOwnMember));
      Set(document.get(), "trusted_locations",
          NewTexts(store_.TrustedLocations(), NewText));
    }
    Set(document.get(), "sites", NewSites());
    return is_whole_ ? std::move(document) : nullptr;
  }

 private:
  // By name, each once.
  std::set<std::string> Names() const {
    if (!line_.words.empty()) return {line_.words.begin(), line_.words.end()};
    const std::vector<std::string> sites = store_.PossibleSites();
    return {sites.begin(), sites.end()};
  }

  json_t* NewSites() {
    json_t* array = json_array();
    for (const std::string& name : Names()) {
      if (json_t* site = NewSite(name)) json_array_append_new(array, site);
    }
    return array;
  }

  // Null when the file is missing or damaged.
  json_t* NewSite(const std::string& name) {
    const SASM::SimpleString file =
        store_.Layout().SettingsFileOf(name.c_str());
    const SettingsOnDisk on_disk = ReadSettings(file);
    if (on_disk.problem.Exists()) {
      PrintProblem(file.c_str(), on_disk.problem);
      is_whole_ = false;
    } else if (on_disk.is_missing && !line_.words.empty() &&
               !store_.IsListed(name)) {
      unknown_.Report(name);
      is_whole_ = false;
    }
    if (!on_disk.IsIntact()) return nullptr;
    json_t* site = json_object();
    Set(site, "site", NewText(name));
    if (!store_.IsListed(name)) Set(site, "listed", json_false());
    Set(site, "settings", NewEntries(*on_disk.dictionary, {}));
    return site;
  }

  const CommandLine& line_;
  const StoreView store_;
  UnknownSites unknown_;
  bool is_whole_ = true;
};

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
  const Json document = ExportCommand(line).NewDocument();
  if (!document) return kFailure;
  if (!outputs.empty()) {
    return WriteFile(document.get(), outputs[0]) ? kSuccess : kFailure;
  }
  (void)Print(document.get(), stdout);  // main reports a failure
  return kSuccess;
}
