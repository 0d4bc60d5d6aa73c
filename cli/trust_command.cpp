#include <unistd.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/settings_edit.h"
#include "cli/trusted_locations.h"
#include "platform/linux_file_manager.h"
#include "settings/settings_format.h"
#include "strings/printable_text.h"

namespace {

bool AreLocations(const std::vector<const char*>& paths) {
  for (const char* path : paths) {
    const std::size_t size = std::string_view(path).size();
    if (size > 0 && size <= SMImplementation::kLongestText) continue;
    PrintUsageError("this can be no location: ", path);
    return false;
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

void Remove(const std::string& path, std::vector<std::string>* locations) {
  // An entry may be any text that somebody has typed.
  if (std::erase(*locations, path) == 0) {
    std::erase(*locations, Absolute(path));
  }
}

}  // namespace

ExitStatus RunTrust(const CommandLine& line) {
  if (!AreLocations(line.words)) return kUsageError;
  const LinuxFileManager files;
  const StoreView store(files);
  if (!MayChange(store)) return kFailure;
  std::vector<std::string> locations = NamesIn(store.TrustedLocations());
  std::vector<std::string> added;
  for (const char* word : line.words) {
    added.push_back(Absolute(word));
    if (added.back().empty()) {
      PrintError(word, "the working directory is unknown");
      return kFailure;
    }
  }
  AddLocations(added, &locations);
  Changes changes;
  changes.Add(ChangeOfLocations(locations, store));
  return changes.Finish(line);
}

ExitStatus RunUntrust(const CommandLine& line) {
  if (!AreLocations(line.words)) return kUsageError;
  const LinuxFileManager files;
  const StoreView store(files);
  if (!MayChange(store)) return kFailure;
  std::vector<std::string> locations = NamesIn(store.TrustedLocations());
  for (const char* path : line.words) Remove(path, &locations);
  Changes changes;
  changes.Add(ChangeOfLocations(locations, store));
  return changes.Finish(line);
}
