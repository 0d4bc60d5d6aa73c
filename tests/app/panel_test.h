// Runs the panel in the process of the test, in a home of its own.
#pragma once

#include <gmock/gmock.h>

#include <initializer_list>
#include <string>

#include "app/gnome_tcc_applet.h"
#include "app/lists.h"
#include "tests/support/temporary_home.h"

// Each test needs a process of its own, as a process has one store. Any warning
// of the toolkit ends the test.
class PanelTest : public ::testing::Test {
 protected:
  using Names = TemporaryHome::Names;

  void Start(const char* page_name = nullptr);
  void GoToPage(int page);
  // Handles events until none is pending.
  static void Settle();

  void Click(const char* button);
  void Select(const char* tree_view, std::initializer_list<int> rows);
  // Emits the signal of the combo box of the first selected row.
  void ChooseInList(ListIndex index, PermissionState state);

  // The texts of a list store's column, from top to bottom.
  [[nodiscard]] Names Column(const char* list_store, int column);
  GtkWidget* Widget(const char* id);

  TemporaryHome home_;
  GnomeTCCapplet* panel_ = nullptr;
};
