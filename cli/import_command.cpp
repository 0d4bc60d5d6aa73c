#include <span>
#include <unordered_set>
#include <utility>

#include "cli/commands.h"
#include "cli/document.h"
#include "cli/error_messages.h"
#include "cli/settings_edit.h"
#include "cli/site_removal.h"
#include "cli/trusted_locations.h"

using SASM::SettingsDictionary;
using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

// Removes from the dictionary what is neither an entry nor one of `kept_keys`.
void RemoveOthers(const Document::Entries& entries,
                  std::span<const std::string_view> kept_keys,
                  SettingsDictionary* dictionary) {
  std::unordered_set<std::string_view> kept(kept_keys.begin(), kept_keys.end());
  for (const auto& entry : entries) kept.insert(entry.name.c_str());
  for (auto node = dictionary->begin(); node != dictionary->end();) {
    const auto next = ++SettingsDictionary::iterator(node);
    if (!kept.contains(node->key.c_str())) dictionary->erase(node);
    node = next;
  }
}

class ImportCommand {
 public:
  ImportCommand(const CommandLine& line, const Document& document)
      : line_(line),
        replaces_(line.Has(kReplace)),
        deletes_data_(line.Has(kDeleteData)),
        document_(document) {}

  ExitStatus Run() {
    if (!MayChange(store_)) return kFailure;
    if (document_.global) SetGlobal(*document_.global);
    if (document_.trusted_locations) SetLocations(*document_.trusted_locations);
    if (document_.sites) SetSites(*document_.sites);
    return Worse(changes_.Finish(line_), status_);
  }

 private:
  void Put(const Document::Entries& entries,
           std::span<const std::string_view> kept_keys,
           SettingsDictionary* dictionary) {
    if (replaces_) RemoveOthers(entries, kept_keys, dictionary);
    for (const auto& entry : entries) dictionary->insert(entry.name, entry);
  }

  void SetGlobal(const Document::Entries& entries) {
    SettingsEdit edit(SASM::MasterDomainName(), &store_.Master());
    Put(entries, kKeysWithOwnMember, &edit.After());
    // They come back at every start.
    edit.InsertDefaults(store_.Master());
    changes_.Add(edit.ToChange());
  }

  void SetLocations(const std::vector<std::string>& locations) {
    std::vector<std::string> all;
    if (!replaces_) all = store_.TrustedLocations();
    AddLocations(locations, &all);
    changes_.Add(ChangeOfLocations(all, store_));
  }

  void SetSites(const std::vector<Document::Site>& sites) {
    if (replaces_) RemoveOtherSites(sites);
    for (const Document::Site& site : sites) SetSite(site);
  }

  void SetSite(const Document::Site& site) {
    const SimpleString file = store_.Layout().SettingsFileOf(site.name);
    const SettingsOnDisk on_disk = ReadSettings(file);
    if (on_disk.problem.Exists() && !replaces_) {
      PrintProblem(file.c_str(), on_disk.problem);
      status_ = kFailure;
      return;
    }
    const bool is_new = !on_disk.IsIntact();
    SettingsEdit edit(site.name, is_new ? nullptr : on_disk.dictionary.get());
    // What is damaged may still hold other keys.
    if (is_new && replaces_) edit.ReplaceAll();
    Put(site.settings, {}, &edit.After());
    Change change = edit.ToChange();
    if (change.lines.empty() && !is_new) change.apply = nullptr;
    ListSite(site, is_new, &change);
    changes_.Add(std::move(change));
    if (deletes_data_ && IsBlocked(site)) {
      changes_.Add(DeletionOfData(site.name, store_));
    }
  }

  // Adds what is to be done about the site's place in the list.
  void ListSite(const Document::Site& site, bool is_new, Change* change) const {
    const std::size_t places = store_.CountInList(site.name.c_str());
    const std::size_t wanted = site.is_listed ? 1 : 0;
    const std::size_t surplus =
        replaces_ && places > wanted ? places - wanted : 0;
    const bool adds = site.is_listed && places == 0;
    if (!is_new && !adds && surplus == 0) return;
    const char* what = is_new || adds ? "added"
                       : wanted == 0  ? "no longer listed"
                                      : "listed once";
    change->lines.insert(change->lines.begin(), Line(site.name.c_str(), what));
    change->apply = [name = site.name, is_listed = site.is_listed, surplus,
                     write = change->apply](SettingsManager& manager) {
      if (write && !write(manager)) return false;
      for (std::size_t i = 0; i < surplus; ++i) {
        if (!manager.RemoveFromList(name)) return false;
      }
      return !is_listed || manager.AddToList(name);
    };
  }

  static bool IsBlocked(const Document::Site& site) {
    const Permission& storage = kPermissions[kStorage];
    for (const auto& entry : site.settings) {
      if (!(entry.name == storage.limit_key)) continue;
      return StateOfLimit(SASM::NumberOr(&entry, kLimitOfBlock)) ==
             kPermissionStateAlwaysDeny;
    }
    return false;
  }

  void RemoveOtherSites(const std::vector<Document::Site>& sites) {
    std::unordered_set<std::string> named;
    // The directories of sites whose names have slashes are below others.
    std::unordered_set<std::string> above;
    for (const Document::Site& site : sites) {
      const std::string name = site.name.c_str();
      named.insert(name);
      for (std::size_t slash = name.find('/'); slash != name.npos;
           slash = name.find('/', slash + 1)) {
        above.insert(name.substr(0, slash));
      }
    }
    const Data data = deletes_data_ ? Data::kDeleted : Data::kKept;
    for (const std::string& site : store_.KnownSites()) {
      if (named.contains(site)) continue;
      Change change = RemovalOfSite(site.c_str(), data, store_);
      if (above.contains(site)) {
        change.apply = [name = SimpleString(site.c_str())](
                           SettingsManager& manager) {
          return manager.DeleteDomainSettingsFile(name, /*file_only=*/true) &&
                 manager.RemoveFromList(name);
        };
      }
      changes_.Add(std::move(change));
    }
  }

  const CommandLine& line_;
  const bool replaces_;
  const bool deletes_data_;
  const Document& document_;
  const StoreView store_;
  Changes changes_;
  ExitStatus status_ = kSuccess;
};

// --replace says what the settings are afterwards: all of them.
const char* MissingMember(const Document& document) {
  if (!document.global) return "global";
  if (!document.trusted_locations) return "trusted_locations";
  return document.sites ? nullptr : "sites";
}

}  // namespace

ExitStatus RunImport(const CommandLine& line) {
  Document document;
  std::string problem;
  if (!ReadDocument(line.words[0], &document, &problem)) {
    std::fprintf(stderr, "%s: %s\n", kProgramName, problem.c_str());
    return kUsageError;
  }
  const char* missing = line.Has(kReplace) ? MissingMember(document) : nullptr;
  if (missing) {
    PrintError(line.words[0],
               std::string(missing) + ": is missing, and --replace needs it");
    return kUsageError;
  }
  return ImportCommand(line, document).Run();
}
