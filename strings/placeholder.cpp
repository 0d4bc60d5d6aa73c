#include "strings/placeholder.h"

std::string FillPlaceholder(std::string format, std::string_view argument) {
  const std::size_t placeholder = format.find("%s");
  if (placeholder != format.npos) format.replace(placeholder, 2, argument);
  return format;
}
