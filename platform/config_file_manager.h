// A text file of keys and values.
#pragma once

#include <cstdio>

#include "settings/hash_map.h"
#include "settings/string_vector.h"

namespace SASM {

// Reads a file of lines "key=value" into a dictionary, answers questions about
// it, takes changes, and writes the whole dictionary back. The file is read
// once, at construction, and not locked: a later change by another program is
// not seen and is overwritten.
//
// A line ends at a line feed, a carriage return, both together, or the end of
// the file, and may have any length. The key is the text before the first "=",
// the value the text after it; both lose the blanks at their ends, the bytes 1
// to 32. Bytes from 128 up are text. A line without "=", without a key or
// without a value is skipped; a zero byte hides the rest of its line. There are
// no comments. When a key occurs twice, the last line wins.
//
// Any text can be set and is then returned by ValueForKey, but the file cannot
// hold every text. A later read of the file gives:
//   line end in a value      the value up to it; the rest is a line of its own
//   line end in a key        the key after its last line end; the text before
//                            it is lines of their own
//   "=" in a key             the key up to the first "="; the rest of the key,
//                            "=" and the value as the value
//   blanks at the ends       the text without them; if two keys are then equal,
//                            the later one in dictionary order wins
//   empty text or blanks     neither key nor value
//   byte-order mark at the   UTF-8: the key without it; UTF-16: nothing of the
//   start of the first key   whole file
//   in dictionary order
//
// Reading takes time in proportion to the size of the file, times the logarithm
// of the number of keys, and memory for the longest line beside the entries.
class ConfigFileManager {
 public:
  // Reads the file and skips its UTF-8 byte-order mark. The dictionary stays
  // empty when the file cannot be opened, is not a regular file (links are
  // followed; a pipe is not waited for), is shorter than four bytes or begins
  // with a byte-order mark of UTF-16.
  explicit ConfigFileManager(SimpleString const& path);
  ConfigFileManager(const ConfigFileManager&) = delete;
  ConfigFileManager& operator=(const ConfigFileManager&) = delete;

  // Never null: an unknown key gives an empty text. Borrowed; lives as long as
  // this object and follows later changes of an entry that was found.
  [[nodiscard]] const SimpleString* ValueForKey(SimpleString const& key) const;

  // Sets or adds an entry, in memory only. Stores copies.
  void UpdateSetting(SimpleString const& key, SimpleString const& value);

  // Writes one line per entry, in dictionary order, and nothing else: lines
  // that were skipped and the former order are lost. False for an empty path
  // and when the file cannot be opened for writing, as a pipe without a reader;
  // the file is then as before. Errors while writing or closing are not
  // detected and leave a short file.
  [[nodiscard]] bool UpdateSettingsFile() const;

  // Copies of the keys in dictionary order; the caller owns the list.
  [[nodiscard]] StringVector* CreateListOfAllKeys() const;

  // --- The steps of reading and writing

  // Trims the blanks at both ends: returns the first byte of `text` that is not
  // a blank and writes a zero byte after the last. Null when there is none, and
  // for null.
  [[nodiscard]] static char* StripString(char* text);

  // Parses one line, without its end, into the dictionary. Changes the line.
  void ProcessLine(char* line);

  // Reads the lines from the current position to the end.
  void ProcessFile(FILE* file);

  // Writes every entry at the current position.
  void ProcessSettingsForWrite(FILE* file) const;

 private:
  HashMap<SimpleString, SimpleString, hashSS> mEntries;
  SimpleString mPath;
};

}  // namespace SASM
