#include "cli/commands.h"
#include "cli/site_removal.h"

ExitStatus RunRemove(const CommandLine& line) {
  if (!AreSiteNames(line.words)) return kUsageError;
  const StoreView store;
  if (!MayChange(store)) return kFailure;
  const Data data = line.Has(kKeepData) ? Data::kKept : Data::kDeleted;
  Changes changes;
  for (const char* site : WithoutRepetitions(line.words)) {
    changes.Add(RemovalOfSite(site, data, store));
  }
  return changes.Finish(line);
}
