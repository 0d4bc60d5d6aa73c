# shellcheck shell=bash
# The languages of the panel. To be sourced.

# Usage: list_languages SOURCE_DIRECTORY
# Prints a line for each: its language code and a locale that speaks it.
list_languages() {
  sed -nE 's/^ *ROW\(\w+, "(\w+)", "\w+", "(\w+)"\).*/\1 \2/p' \
    "$1/strings/languages.h"
}
