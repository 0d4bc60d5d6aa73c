// JSON values, made and printed by jansson.
#pragma once

#include <jansson.h>

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct JsonDeleter {
  void operator()(json_t* value) const { json_decref(value); }
};
using Json = std::unique_ptr<json_t, JsonDeleter>;

// Lets a failed allocation of the library end the program. Call this before
// anything else here.
void PrepareJson();

// As long as one of these lives, the library may take this much memory and no
// more: what is beyond fails inside the library.
class JsonMemoryLimit {
 public:
  explicit JsonMemoryLimit(std::size_t bytes);
  ~JsonMemoryLimit();
  JsonMemoryLimit(const JsonMemoryLimit&) = delete;
  JsonMemoryLimit& operator=(const JsonMemoryLimit&) = delete;
};

// The functions below return new values, which the caller owns.

// A string, or {"bytes": "hex"} for bytes that are not UTF-8.
[[nodiscard]] json_t* NewText(std::string_view bytes);
// A string in which each byte that is not UTF-8 has become U+FFFD.
[[nodiscard]] json_t* NewShownText(std::string_view bytes);
// An array of what `make`, one of these two, makes of the texts.
[[nodiscard]] json_t* NewTexts(const std::vector<std::string>& texts,
                               json_t* (*make)(std::string_view bytes));
// An integer where that says the same. All bits are kept. `number` is finite.
[[nodiscard]] json_t* NewNumber(double number);
// The word for a number that JSON cannot express: "NaN", "Infinity" or
// "-Infinity"; null for others.
[[nodiscard]] const char* WordOfNumber(double number);
// A number, or the word for it.
[[nodiscard]] json_t* NewShownNumber(double number);

// Sets a member; takes over `value`.
void Set(json_t* object, const char* key, json_t* value);

// Prints the value in printable ASCII: all else is escaped. `flags` are those
// of json_dumpf.
void PrintJson(const json_t* value, std::size_t flags, std::FILE* output);
