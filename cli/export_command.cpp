#include <algorithm>
#include <cerrno>
#include <cstring>

#include "cli/commands.h"
#include "cli/document.h"
#include "cli/error_messages.h"
#include "cli/store_view.h"
#include "cli/unknown_sites.h"
#include "platform/linux_file_manager.h"

namespace {

class ExportCommand {
 public:
  explicit ExportCommand(const CommandLine& line)
      : line_(line), store_(files_), unknown_(store_) {}

  // Null when something is damaged or unknown, which is reported.
  Json NewDocument() {
    if (!store_.ReportProblem()) return nullptr;
    Json document(json_object());
    Set(document.get(), "format", json_string(kDocumentFormat));
    if (line_.words.empty()) {
      Set(document.get(), "global",
          NewEntries(store_.Master(), kKeysWithOwnMember));
      Set(document.get(), "trusted_locations", NewLocations());
    }
    Set(document.get(), "sites", NewSites());
    return is_whole_ ? std::move(document) : nullptr;
  }

 private:
  // By name, each once.
  std::vector<std::string> Names() const {
    std::vector<std::string> names(line_.words.begin(), line_.words.end());
    if (names.empty()) names = store_.PossibleSites();
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
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

  json_t* NewLocations() const {
    json_t* array = json_array();
    for (const std::string& name : store_.TrustedLocations()) {
      json_array_append_new(array, NewText(name));
    }
    return array;
  }

  const CommandLine& line_;
  const LinuxFileManager files_;
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
