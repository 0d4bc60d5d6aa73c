// Names from disk as the toolkit can show them.
#pragma once

#include <string>

// The text in valid UTF-8: bytes that are not become U+FFFD. A name is stored
// and removed by its own bytes, never by these.
std::string display_text(const char* raw);
