#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/settings_edit.h"
#include "cli/trusted_locations.h"
#include "settings/settings_format.h"
#include "strings/printable_text.h"

namespace {

bool AreLocations(const std::vector<const char*>& paths) {
  for (const char* path : paths) {
    const std::size_t size = std::string_view(path).size();
    if (size > 0 && size <= SMImplementation::kLongestText) continue;
    return Refuse("this can be no location: ", path);
  }
  return true;
}

// Empty when the working directory is unknown.
std::string Absolute(const std::string& path) {
  if (path.starts_with('/')) return path;
  const std::unique_ptr<char, decltype(&std::free)> directory(
      getcwd(nullptr, 0), std::free);
  if (!directory) return "";
  const std::string start = directory.get();
  return start + (start.ends_with('/') ? "" : "/") + path;
}

using Paths = std::vector<const char*>;
using Locations = std::vector<std::string>;

// False when a path cannot be added, which is reported.
bool Trust(const Paths& paths, Locations* locations) {
  Locations added;
  for (const char* path : paths) {
    added.push_back(Absolute(path));
    if (!added.back().empty()) continue;
    PrintError(path, "the working directory is unknown");
    return false;
  }
  AddLocations(added, locations);
  return true;
}

bool Untrust(const Paths& paths, Locations* locations) {
  for (const char* path : paths) {
    // An entry may be any text that somebody has typed.
    if (std::erase(*locations, path) > 0) continue;
    std::erase(*locations, Absolute(path));
  }
  return true;
}

ExitStatus Run(const CommandLine& line,
               bool (*edit)(const Paths& paths, Locations* locations)) {
  if (!AreLocations(line.words)) return kUsageError;
  const StoreView store;
  if (!MayChange(store)) return kFailure;
  Locations locations = store.TrustedLocations();
  if (!edit(line.words, &locations)) return kFailure;
  Changes changes;
  changes.Add(ChangeOfLocations(locations, store));
  return changes.Finish(line);
}

}  // namespace

ExitStatus RunTrust(const CommandLine& line) { return Run(line, Trust); }
ExitStatus RunUntrust(const CommandLine& line) { return Run(line, Untrust); }
