#include <string_view>

#include "cli/changes.h"
#include "cli/commands.h"
#include "cli/findings.h"
#include "cli/json.h"
#include "cli/settings_edit.h"
#include "strings/printable_text.h"

using SASM::SettingsManager;
using SASM::SimpleString;

namespace {

void PrintAsText(const std::vector<Finding>& findings) {
  for (const Finding& finding : findings) {
    std::printf("%s: %s: %s\n", Printable(finding.subject).c_str(),
                finding.kind, finding.detail.c_str());
  }
}

// The changes of --relist; null without it.
void PrintAsJson(const std::vector<Finding>& findings, Json changes) {
  json_t* array = json_array();
  for (const Finding& finding : findings) {
    const bool is_site = finding.about == Finding::About::kSite;
    json_t* object = json_object();
    Set(object, "kind", json_string(finding.kind));
    Set(object, is_site ? "site" : "path", NewText(finding.subject));
    Set(object, "detail", NewText(finding.detail));
    json_array_append_new(array, object);
  }
  const Json document(json_object());
  if (changes) Set(document.get(), "changes", changes.release());
  Set(document.get(), "findings", array);
  PrintJson(document.get(), JSON_COMPACT, stdout);
  std::putchar('\n');
}

bool IsUnlistedSite(const Finding& finding) {
  return finding.kind == std::string_view(kUnlistedSettings);
}

// Lists the sites again that are not listed.
Changes Relisting(const StoreView& store,
                  const std::vector<Finding>& findings) {
  Changes changes;
  if (store.MasterProblem().Exists()) {
    // Opening the store has put them there.
    const std::string subject = SubjectOf(SASM::MasterDomainName());
    changes.Add({subject,
                 {Line(subject, "defaults again")},
                 [](SettingsManager& manager) {
                   return manager.SynchronizeSettingsForDomain(
                       SettingsManager::MasterDomain());
                 }});
  }
  for (const Finding& finding : findings) {
    if (!IsUnlistedSite(finding)) continue;
    const SimpleString site = finding.subject.c_str();
    changes.Add({finding.subject,
                 {Line(finding.subject, "added")},
                 [site](SettingsManager& manager) {
                   return manager.AddDomainWithDefaultSettings(site);
                 }});
  }
  return changes;
}

// What Relisting leaves.
void EraseRelisted(const StoreView& store, std::vector<Finding>* findings) {
  const SimpleString master =
      store.Layout().SettingsFileOf(SASM::MasterDomainName());
  std::erase_if(*findings, [&](const Finding& finding) {
    return IsUnlistedSite(finding) ||
           (finding.kind == std::string_view(kDamagedFile) &&
            finding.subject == master.c_str());
  });
}

}  // namespace

ExitStatus RunDoctor(const CommandLine& line) {
  if (line.Has(kDryRun) && !line.Has(kRelist)) {
    return PrintUsageError("--dry-run is for --relist");
  }
  const StoreView store;
  if (!store.Layout().IsOnDisk()) return kFailure;
  std::vector<Finding> findings = FindFaults(store);
  ExitStatus status = kSuccess;
  Json changes;
  if (line.Has(kRelist)) {
    if (!OwnsHome(store)) return kFailure;
    changes.reset(json_array());
    status = Relisting(store, findings).Finish(line, [&](const auto& text) {
      if (!line.Has(kJson)) std::puts(text.c_str());
      json_array_append_new(changes.get(), NewText(text));
    });
    EraseRelisted(store, &findings);
  }
  line.Has(kJson) ? PrintAsJson(findings, std::move(changes))
                  : PrintAsText(findings);
  return findings.empty() ? status : kFailure;
}
