// The four pages of the main window.
#pragma once

#include "app/gnome_tcc_applet.h"

// In the order of the notebook.
enum NotebookPage : int {
  kCurrentPage = -1,
  kStoragePage = 0,
  kPrivacyPage = 1,
  kPlaybackPage = 2,
  kAdvancedPage = 3,
};

// Updates the page's controls and lists from the stored settings; writes
// nothing. Runs whenever a page becomes current and after every change.
void update_notebook_page(GnomeTCCapplet* panel, int page);
