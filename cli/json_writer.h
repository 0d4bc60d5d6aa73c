// JSON on standard output.
#pragma once

#include <cstdint>
#include <string_view>

// Prints one object or array, call by call in the order of the output. The
// caller closes what it opened. The output is valid JSON (RFC 8259): a byte
// that is not UTF-8 becomes U+FFFD, and a number that JSON cannot express
// becomes the text "NaN", "Infinity" or "-Infinity".
class JsonWriter {
 public:
  // Goes before each value of an object. Returns the writer itself.
  JsonWriter& Key(std::string_view key);

  void Text(std::string_view bytes);
  void Number(double number);
  void Integer(std::uint64_t number);
  void Boolean(bool boolean);

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }
  // Ends the output.
  static void EndLine();

 private:
  void Open(char bracket);
  void Close(char bracket);
  void Separate();

  bool needs_comma_ = false;
};
