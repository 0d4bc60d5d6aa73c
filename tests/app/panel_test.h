// The panel in the test's own process, on a home of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "app/gnome_tcc_applet.h"
#include "app/site_lists.h"
#include "tests/support/panel_home.h"

// Needs a process for each test: the panel's store is one for a process. Any
// warning of the toolkit ends the test.
class PanelTest : public ::testing::Test {
 protected:
  using Names = PanelHome::Names;
  using Steps = std::function<void()>;

  void Start(const char* page_name = nullptr);
  void GoToPage(int page);
  // Handles what is pending, until the display has nothing more to say.
  static void Settle();

  void Click(const char* button);
  void Choose(const char* toggle_button);
  void Type(const char* entry, const std::string& text);
  void Select(const char* tree_view, std::initializer_list<int> rows);
  // As by the combo box of the first selected row.
  void ChooseInList(SitePermissionMode mode, PermissionState state);
  // While the action runs that dialog modally, takes the steps and answers.
  void Answer(const char* dialog, int response, const Steps& action,
              const Steps& steps = {});
  // The same for a file chooser: chooses that file, or cancels for "".
  void AnswerFileChooser(const std::string& path, const Steps& action);

  [[nodiscard]] bool IsSensitive(const char* widget);
  [[nodiscard]] bool IsActive(const char* toggle_button);
  // The texts of a list store's column, from top to bottom.
  [[nodiscard]] Names Column(const char* list_store, int column);
  // Texts of the error dialogs that are open: titles and messages.
  [[nodiscard]] static Names Errors();
  GtkWidget* Widget(const char* id);

  PanelHome home_;
  GnomeTCCapplet* panel_ = nullptr;
};

// What the panel keeps is its own until the process ends.
[[nodiscard]] GnomeTCCapplet* NewPanelForProcess();
