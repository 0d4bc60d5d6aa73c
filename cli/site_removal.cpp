#include "cli/site_removal.h"

#include <algorithm>
#include <utility>

#include "cli/directory_search.h"
using SASM::SettingsManager;
using SASM::SimpleString;

Change DeletionOfData(const SimpleString& site, const StoreView& store) {
  Change change = {site.c_str(), {}, {}};
  const SimpleString directory = store.Layout().LocalStorageOf(site);
  if (store.Layout().ListingError() == 0 && !IsThere(directory)) return change;
  change.lines.push_back(Line(site.c_str(), "stored data deleted"));
  change.apply = [site, directory](SettingsManager& manager) {
    // A directory that cannot be opened is left, without a failure.
    return manager.RemoveDomainInformation(site, /*remove_settings=*/false,
                                           /*remove_storage=*/true) &&
           !IsThere(directory);
  };
  return change;
}

Change RemovalOfSite(const SimpleString& site, Data data,
                     const StoreView& store) {
  const bool deletes_data = data == Data::kDeleted;
  Change change = {site.c_str(), {}, {}};
  if (deletes_data) change = DeletionOfData(site, store);
  if (!store.IsKnown(site)) return change;
  change.lines.insert(change.lines.begin(), Line(site.c_str(), "removed"));
  const std::size_t places =
      std::max<std::size_t>(store.CountInList(site.c_str()), 1);
  change.apply =
      [site, deletes_data, places, settings = store.Layout().DirectoryOf(site),
       data = store.Layout().LocalStorageOf(site)](SettingsManager& manager) {
        bool removed = true;
        for (std::size_t i = 0; i < places && removed; ++i) {
          removed = manager.RemoveDomainInformation(
              site, /*remove_settings=*/true, deletes_data);
        }
        return removed && !IsThere(settings) &&
               (!deletes_data || !IsThere(data));
      };
  return change;
}
