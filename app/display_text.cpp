#include "app/display_text.h"

#include <glib.h>

std::string display_text(const char* raw) {
  if (!raw) return {};
  char* valid = g_utf8_make_valid(raw, -1);
  std::string text = valid;
  g_free(valid);
  return text;
}
