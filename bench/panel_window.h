// The panel in this process, without its main loop.
#pragma once

#include "app/lists.h"
#include "app/notebook_pages.h"
#include "bench/site_home.h"

// Starts the panel but for showing its window, with no store: its document, its
// texts, its lists.
GnomeTCCapplet* StartWithoutStore(int* argc, char*** argv);

// Opens the store on what is now in the home directory, in place of one that
// was open.
void OpenStore(GnomeTCCapplet* panel);

// A list of sites as the toolkit has it.
struct SiteList {
  bool has_sizes;
  GtkTreeView* view;
  GtkListStore* store;
};
SiteList FindSiteList(GnomeTCCapplet* panel, ListIndex index);

// Refills the list by the toolkit's own calls, taken off its view meanwhile.
// The sizes, where it has some, are those of the trees in `paths`.
void FillBare(const SiteList& list, const SiteHome::Names& sites,
              const std::vector<SiteHome::Paths>& paths);

// Runs the main loop until nothing waits.
void RunToIdle();
