#include "app/name_search.h"

#include <string>

#include "app/lists.h"
#include "app/widget_helpers.h"
#include "strings/printable_text.h"

namespace {

// The same for texts that differ in case only, or in how their letters are
// composed.
std::string Folded(const char* text) {
  char* normal = g_utf8_normalize(text, -1, G_NORMALIZE_ALL);
  char* folded = g_utf8_casefold(normal, -1);
  std::string copy = folded;
  g_free(folded);
  g_free(normal);
  return copy;
}

gboolean IsElsewhere(GtkTreeModel* model, int, const char* part,
                     GtkTreeIter* row, gpointer) {
  const SASM::SimpleString name = get_text_field(model, row, kNameColumn);
  return Folded(Printable(name.c_str()).c_str()).find(Folded(part)) ==
         std::string::npos;
}

}  // namespace

void find_names_by_any_part(GtkTreeView* view) {
  gtk_tree_view_set_search_equal_func(view, IsElsewhere, nullptr, nullptr);
}
