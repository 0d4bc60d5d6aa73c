#include "cli/changes.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "cli/error_messages.h"
#include "platform/home_directory.h"
#include "platform/linux_file_manager.h"
#include "strings/printable_text.h"

namespace {

ExitStatus Apply(const std::vector<Change>& changes,
                 const Changes::Print& print) {
  LinuxFileManager files;
  SASM::SettingsManager manager(&files);
  SASM::ListWriteGuard guard(&manager);
  ExitStatus status = kSuccess;
  for (const Change& change : changes) {
    if (change.apply(manager)) {
      std::ranges::for_each(change.lines, print);
      continue;
    }
    PrintError(change.subject, "could not be changed");
    status = kFailure;
  }
  if (guard.Finish()) return status;
  PrintError("the list of sites", "could not be written");
  return kFailure;
}

}  // namespace

std::string Line(std::string_view subject, std::string_view what) {
  return Printable(subject).append(": ").append(what);
}

void Changes::Add(Change change) {
  if (!change.lines.empty()) changes_.push_back(std::move(change));
}

ExitStatus Changes::Finish(const CommandLine& line, const Print& print) const {
  if (changes_.empty()) return kSuccess;
  if (!line.Has(kDryRun)) return Apply(changes_, print);
  for (const Change& change : changes_) {
    std::ranges::for_each(change.lines, print);
  }
  return kSuccess;
}

bool OwnsHome(const StoreView& store) {
  if (!store.Layout().IsOnDisk()) return false;
  const SASM::SimpleString home = ExpandHomeDirectory("~");
  struct stat info;
  if (stat(home.c_str(), &info) != 0 || info.st_uid == geteuid()) return true;
  PrintError(home.c_str(), "belongs to the user with the number " +
                               std::to_string(info.st_uid) +
                               "; run it as that user");
  return false;
}

bool MayChange(const StoreView& store) {
  if (!OwnsHome(store)) return false;
  if (store.ReportProblem()) return true;
  PrintError("the global settings",
             "not readable, so nothing is changed; 'inspect --global' shows "
             "what is left of them, 'doctor --relist' starts again with "
             "defaults");
  return false;
}

bool AreSiteNames(const std::vector<const char*>& names) {
  for (const char* name : names) {
    if (SASM::IsSiteName(name)) continue;
    return Refuse("this can be no site: ", name);
  }
  return true;
}

std::vector<const char*> WithoutRepetitions(
    const std::vector<const char*>& words) {
  std::unordered_set<std::string_view> seen;
  std::vector<const char*> kept;
  for (const char* word : words) {
    if (seen.insert(word).second) kept.push_back(word);
  }
  return kept;
}
