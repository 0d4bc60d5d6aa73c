#include "cli/site_removal.h"

#include <algorithm>
#include <utility>

#include "store/stored_data.h"
#include "strings/printable_text.h"

using SASM::SettingsManager;
using SASM::SimpleString;

bool HasData(const SimpleString& site, const StoreView& store,
             const SASM::FileManager& files) {
  return SASM::LocalStorageSize(site, store.Layout(), files) != 0;
}

Change DeletionOfData(const SimpleString& site, const StoreView& store,
                      const SASM::FileManager& files) {
  Change change = {site.c_str(), {}, {}};
  if (!HasData(site, store, files)) return change;
  change.lines.push_back(Printable(site.c_str()) + ": stored data deleted");
  change.apply = [site](SettingsManager& manager) {
    // A directory that cannot be opened is left, without a failure.
    return manager.RemoveDomainInformation(site, /*remove_settings=*/false,
                                           /*remove_storage=*/true) &&
           manager.SizeOfLocalStorage(site) == 0;
  };
  return change;
}

Change RemovalOfSite(const SimpleString& site, Data data,
                     const StoreView& store, const SASM::FileManager& files) {
  const bool deletes_data = data == Data::kDeleted;
  Change change = {site.c_str(), {}, {}};
  if (deletes_data) change = DeletionOfData(site, store, files);
  if (!store.IsKnown(site)) return change;
  change.lines.insert(change.lines.begin(),
                      Printable(site.c_str()) + ": removed");
  change.apply = [site, deletes_data,
                  places =
                      std::max<std::size_t>(store.CountInList(site.c_str()),
                                            1)](SettingsManager& manager) {
    bool removed = true;
    for (std::size_t i = 0; i < places && removed; ++i) {
      removed = manager.RemoveDomainInformation(site, /*remove_settings=*/true,
                                                deletes_data);
    }
    return removed && manager.SizeOfSettings(site) == 0 &&
           (!deletes_data || manager.SizeOfLocalStorage(site) == 0);
  };
  return change;
}
