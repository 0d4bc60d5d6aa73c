// A text file of keys and values.
#pragma once

#include <cstdio>

#include "settings/hash_map.h"
#include "settings/string_vector.h"

namespace SASM {

// Reads a file of lines "key=value" into a dictionary, answers questions about
// it, takes changes, and writes the whole dictionary back. The file is read
// once, at construction, and not locked: what another program writes later is
// not seen, and overwritten.
//
// A line ends at a line feed, a carriage return, the two together, or the end
// of the file, and may be of any length. The key stands before the first "=",
// the value after it; both lose the blanks at their ends, the bytes 1 to 32.
// Bytes from 128 up are text. A line without "=", without a key or without a
// value is passed over; a zero byte hides the rest of its line. There are no
// comments. Of a key that occurs twice the last line wins.
//
// Any text can be set and is then had from ValueForKey, but not all of it
// stands the way through the file. What a later read finds:
//   a line end in a value    the value up to it; the rest as a line of its own
//   a line end in a key      the key from after its last line end; what stands
//                            before it as lines of their own
//   "=" in a key             the key up to the first "="; the rest of it, "="
//                            and the value as the value
//   blanks at the ends       the text without them; of two keys that are then
//                            equal, the later in dictionary order
//   an empty text, or only   nothing: neither key nor value
//   blanks
//   a byte-order mark that   of UTF-8: the key without it; of UTF-16: nothing
//   begins the first key     of the whole file
//   in dictionary order
//
// Reading takes time in proportion to the size of the file, whatever the
// length of its lines, and memory for the longest line, at most three times
// its length, beside what is kept. The dictionary has sixteen buckets, and
// each line walks one of them: n distinct keys cost about n^2 / 32 steps, and
// n^2 / 2 when all fall into one bucket; every further line costs n / 32, or
// n / 2. A thousand keys are read as fast as the disk gives them, a hundred
// thousand take seconds, three hundred thousand minutes.
//
// When memory is short a line or a change is left out; nothing is reported.
class ConfigFileManager {
 public:
  // Reads the file, its UTF-8 byte-order mark skipped. The dictionary stays
  // empty when the file cannot be opened, is no regular file (links are
  // followed; nothing waits for the writer of a pipe), is shorter than four
  // bytes or begins with a byte-order mark of UTF-16.
  explicit ConfigFileManager(SimpleString const& path);
  ConfigFileManager(const ConfigFileManager&) = delete;
  ConfigFileManager& operator=(const ConfigFileManager&) = delete;

  // Never null: of an unknown key the address of an empty text. Owned by the
  // dictionary; lives as long as this object and follows later changes of an
  // entry that was found.
  [[nodiscard]] const SimpleString* ValueForKey(SimpleString const& key) const;

  // Sets or adds an entry, in memory only. Stores copies.
  void UpdateSetting(SimpleString const& key, SimpleString const& value);

  // Writes one line per entry, in dictionary order, and nothing else: lines
  // that reading passed over are gone, and so is the former order. False for
  // an empty path and when the file cannot be opened for writing, a pipe that
  // nobody reads included; the file is then as before. Errors while writing
  // or closing are not detected and leave a short file.
  [[nodiscard]] bool UpdateSettingsFile() const;

  // Copies in dictionary order; the caller owns the list. Null when memory is
  // short.
  [[nodiscard]] StringVector* CreateListOfAllKeys() const;

  // --- The steps of reading and writing

  // Takes the blanks off both ends. Returns the first byte of `text` that is
  // none, and writes a zero byte after the last; null when there is nothing
  // else, and for null.
  [[nodiscard]] static char* StripString(char* text);

  // Takes one line, without its end, into the dictionary. Changes the line.
  void ProcessLine(char* line);

  // Takes the lines from the current position to the end.
  void ProcessFile(FILE* file);

  // Writes every entry at the current position.
  void ProcessSettingsForWrite(FILE* file) const;

 private:
  // The map refuses a key without a text by itself.
  void Insert(SimpleString key, SimpleString value);

  HashMap<SimpleString, SimpleString, hashSS> mEntries;
  SimpleString mPath;
};

}  // namespace SASM
