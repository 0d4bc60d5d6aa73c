// Removals of a site's settings and data.
#pragma once

#include "cli/changes.h"

// No change when the site certainly stores no data.
[[nodiscard]] Change DeletionOfData(const SASM::SimpleString& site,
                                    const StoreView& store);

enum class Data { kDeleted, kKept };
// The site's settings and its places in the list, and its data. No change when
// there is nothing of these.
[[nodiscard]] Change RemovalOfSite(const SASM::SimpleString& site, Data data,
                                   const StoreView& store);
