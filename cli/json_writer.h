// JSON on standard output.
#pragma once

#include <cstdint>
#include <string_view>

// Writes one value, an object or an array, as it is told; calls come in the
// order of the text, and the caller closes what it opened. Always valid JSON
// (RFC 8259): a byte of a text that is no UTF-8 becomes U+FFFD, and a number
// that JSON does not know the text "NaN", "Infinity" or "-Infinity".
class JsonWriter {
 public:
  // In front of every value of an object. Returns the writer itself.
  JsonWriter& Key(std::string_view key);

  void Text(std::string_view bytes);
  void Number(double number);
  void Integer(std::uint64_t number);
  void Boolean(bool boolean);

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }
  // After the last value.
  static void EndLine();

 private:
  void Open(char bracket);
  void Close(char bracket);
  void Separate();

  bool needs_comma_ = false;
};
