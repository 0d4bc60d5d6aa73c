// The panel in the test's own process, on a home of the test's own.
#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"
#include "tests/support/panel_home.h"

// Needs a process for each test: the panel's store is one for a process. Any
// warning of the toolkit ends the test.
class PanelTest : public ::testing::Test {
 protected:
  using Names = PanelHome::Names;

  void Start(const char* page_name = nullptr);
  void GoToPage(int page);
  // Handles what is pending, until the display has nothing more to say.
  static void Settle();

  void Click(const char* button);
  void Choose(const char* toggle_button);
  void Select(const char* tree_view, std::initializer_list<int> rows);
  // As by the combo box of the first selected row.
  void ChooseInList(ListIndex index, PermissionState state);

  // The texts of a list store's column, from top to bottom.
  [[nodiscard]] Names Column(const char* list_store, int column);
  GtkWidget* Widget(const char* id);

  PanelHome home_;
  GnomeTCCapplet* panel_ = nullptr;
};
