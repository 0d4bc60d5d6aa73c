# Usage: awk -f scripts/check_includes.awk README.md SOURCE...
#
# Fails on an #include that the table of folders in README.md does not allow,
# and on a folder in the table that nothing of it is included from. In the
# column "Includes" stand
#   `folder/`                 everything of that folder
#   `file` from `other_file`  that file, in one other file only
#   everything                all folders
#   GTK+ 2, Jansson, libunistring
#                             the headers of these
#   POSIX                     all other headers that end in ".h"
# A folder always includes its own files and the C++ library.

# Leaves the names in backticks of a cell in `names`, and returns their number.
function find_names(cell, names,  count) {
  while (match(cell, /`[^`]*`/)) {
    names[++count] = substr(cell, RSTART + 1, RLENGTH - 2)
    cell = substr(cell, RSTART + RLENGTH)
  }
  return count
}

function read_row(folder, cell,  names, count, i) {
  has_row[folder] = 1
  if (cell ~ /everything/) allowed[folder, "everything"] = 1
  count = split("GTK Jansson libunistring POSIX", names, " ")
  for (i = 1; i <= count; ++i) {
    if (index(cell, names[i])) allowed[folder, names[i]] = 1
  }
  count = find_names(cell, names)
  for (i = 1; i <= count; ++i) {
    if (names[i] ~ /\/$/) allowed[folder, names[i]] = 1
    else {
      allowed[names[i + 1], names[i]] = 1
      ++i
    }
  }
}

function complain(message) {
  print message >"/dev/stderr"
  failed = 1
}

# The names under which the table may allow it: group, then file.
function check(folder, group, file) {
  used[folder, group] = used[FILENAME, file] = 1
  if ((folder, group) in allowed || (FILENAME, file) in allowed) return
  if ((folder, "everything") in allowed) return
  complain(FILENAME ":" FNR ": includes " file \
           ", which README.md does not allow for " folder)
}

FILENAME == "README.md" {
  if (/^\| Folder \|/) in_table = 1
  if (!/^\|/) in_table = 0
  if (!in_table) next
  split($0, cells, "|")
  folder_count = find_names(cells[2], folders)
  for (i = 1; i <= folder_count; ++i) read_row(folders[i], cells[4])
  next
}

FNR == 1 {
  folder = FILENAME
  sub(/\/.*/, "/", folder)
  if (!(folder in has_row)) {
    complain(FILENAME ": README.md has no row for " folder)
  }
}

match($0, /^[ \t]*#[ \t]*include[ \t]*["<][^">]*/) {
  file = substr($0, RSTART, RLENGTH)
  is_own = file ~ /"/
  sub(/.*["<]/, "", file)
  if (is_own) {
    group = file
    sub(/\/.*/, "/", group)
    if (group != folder) check(folder, group, file)
  } else if (file ~ /^(atk|cairo|gdk|gio|glib|gmodule|gobject|gtk|libintl|pango)/) {
    check(folder, "GTK", file)
  } else if (file == "jansson.h") {
    check(folder, "Jansson", file)
  } else if (file ~ /^uni(case|ctype|str|width)\.h$/) {
    check(folder, "libunistring", file)
  } else if (file ~ /\.h$/) {
    check(folder, "POSIX", file)
  }
}

END {
  for (pair in allowed) {
    split(pair, names, SUBSEP)
    if (!(pair in used) && names[2] != "everything") {
      complain("README.md: nothing in " names[1] " includes " names[2])
    }
  }
  exit failed
}
