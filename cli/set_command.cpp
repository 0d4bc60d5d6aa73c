#include <utility>

#include "cli/changes.h"
#include "cli/commands.h"
#include "cli/error_messages.h"
#include "cli/settings_edit.h"
#include "cli/site_removal.h"
#include "cli/unknown_sites.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

// What the user asked for.
struct Request {
  std::vector<PermissionChange> permissions;
  std::vector<const char*> sites;
};

bool ParseRequest(const CommandLine& line, Request* request) {
  std::size_t i = 0;
  for (; i < line.words_before_dashes; ++i) {
    const std::string_view word = line.words[i];
    if (word.find('=') == word.npos) break;
    PermissionChange change;
    if (!ParsePermission(word, Limits::kAllowed, &change)) return false;
    for (const PermissionChange& other : request->permissions) {
      if (other.permission != change.permission) continue;
      return Refuse("a permission is given twice: ", word);
    }
    request->permissions.push_back(change);
  }
  request->sites.assign(line.words.begin() + static_cast<std::ptrdiff_t>(i),
                        line.words.end());
  return true;
}

// For all sites a switch offers two states only.
bool OffersState(const PermissionChange& change) {
  return change.permission->limit_key ||
         change.state != kPermissionStateAlwaysAllow;
}

bool CheckRequest(const CommandLine& line, const Request& request) {
  if (request.permissions.empty()) return Refuse("a permission is missing");
  if (!line.Has(kAllSites)) {
    if (request.sites.empty()) return Refuse("a site is missing");
    return AreSiteNames(request.sites);
  }
  if (!request.sites.empty()) {
    return Refuse("--all-sites takes no site: ", request.sites[0]);
  }
  if (line.Has(kAdd)) return Refuse("--add is not for --all-sites");
  for (const PermissionChange& change : request.permissions) {
    if (OffersState(change)) continue;
    return Refuse("for all sites this is asked or blocked: ",
                  change.permission->word);
  }
  return true;
}

enum class ListEntry { kKept, kAdded };

class SetCommand {
 public:
  explicit SetCommand(const CommandLine& line)
      : line_(line), unknown_(store_) {}

  ExitStatus Run(const Request& request) {
    if (!MayChange(store_)) return kFailure;
    if (line_.Has(kAllSites)) {
      for (const PermissionChange& change : request.permissions) {
        SetForAllSites(change);
      }
    }
    for (const char* site : WithoutRepetitions(request.sites)) {
      SetForSite(site, request.permissions);
    }
    return Worse(changes_.Finish(line_), status_);
  }

 private:
  void SetForAllSites(const PermissionChange& change) {
    SettingsEdit edit(SASM::MasterDomainName(), &store_.Master());
    edit.Put(change);
    changes_.Add(edit.ToChange());
    if (change.is_limit || change.permission->switch_overrides_sites) return;
    for (const std::string& site : store_.ListedSites()) {
      Set(site.c_str(), {change}, ListEntry::kKept);
    }
  }

  void SetForSite(const SimpleString& site,
                  const std::vector<PermissionChange>& permissions) {
    const bool is_listed = store_.IsListed(site.c_str());
    const bool adds = line_.Has(kAdd);
    if (store_.HasSettings(site) && (is_listed || !adds)) {
      Set(site, permissions, ListEntry::kKept);
    } else if (is_listed || adds) {
      // The store drops a listed name without settings when it is opened.
      Set(site, permissions, ListEntry::kAdded);
    } else {
      unknown_.Report(site.c_str(), "; --add adds it");
      status_ = kFailure;
    }
  }

  void Set(const SimpleString& site,
           const std::vector<PermissionChange>& permissions,
           ListEntry listing) {
    const SimpleString file = store_.Layout().SettingsFileOf(site);
    const SettingsOnDisk on_disk = ReadSettings(file);
    if (on_disk.problem.Exists()) {
      // A change would lose what is left of it.
      PrintProblem(file.c_str(), on_disk.problem);
      status_ = kFailure;
      return;
    }
    if (on_disk.is_missing && listing == ListEntry::kKept) return;
    SettingsEdit edit(site, on_disk.dictionary.get());
    if (listing == ListEntry::kAdded) edit.InsertDefaults(store_.Master());
    for (const auto& change : permissions) edit.Put(change);
    Change change = edit.ToChange();
    if (listing == ListEntry::kAdded) PutOnList(site, &change);
    changes_.Add(std::move(change));
    DeleteDataOfBlocked(site, permissions);
  }

  // Also adds the defaults.
  static void PutOnList(const SimpleString& site, Change* change) {
    change->lines.insert(change->lines.begin(), Line(site.c_str(), "added"));
    change->apply = [site, apply = change->apply](SettingsManager& manager) {
      return manager.AddDomainWithDefaultSettings(site) && apply(manager);
    };
  }

  void DeleteDataOfBlocked(const SimpleString& site,
                           const std::vector<PermissionChange>& permissions) {
    for (const PermissionChange& change : permissions) {
      if (!change.permission->limit_key) continue;
      if (change.state != kPermissionStateAlwaysDeny) continue;
      changes_.Add(DeletionOfData(site, store_));
    }
  }

  const CommandLine& line_;
  const StoreView store_;
  UnknownSites unknown_;
  Changes changes_;
  ExitStatus status_ = kSuccess;
};

}  // namespace

ExitStatus RunSet(const CommandLine& line) {
  Request request;
  if (!ParseRequest(line, &request) || !CheckRequest(line, request)) {
    return kUsageError;
  }
  return SetCommand(line).Run(request);
}
