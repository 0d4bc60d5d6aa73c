#include "cli/json.h"

#include <malloc.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "settings/out_of_memory.h"
#include "strings/utf8.h"

namespace {

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
std::size_t memory_limit = kNoLimit;
std::size_t memory_taken = 0;

void* Allocate(std::size_t size) {
  if (size > memory_limit - std::min(memory_limit, memory_taken)) {
    return nullptr;
  }
  void* block = std::malloc(size);
  if (!block) ExitOutOfMemory();
  memory_taken += malloc_usable_size(block);
  return block;
}

void Free(void* block) {
  memory_taken -= malloc_usable_size(block);
  std::free(block);
}

// The library leaves this one character as it is.
int PrintEscapingDelete(const char* text, std::size_t size, void* output) {
  auto* file = static_cast<std::FILE*>(output);
  std::string_view rest(text, size);
  for (;;) {
    const std::size_t found = rest.find('\x7F');
    // No other thread writes.
    fwrite_unlocked(rest.data(), 1, std::min(found, rest.size()), file);
    if (found == rest.npos) return 0;
    std::fputs("\\u007F", file);
    rest.remove_prefix(found + 1);
  }
}

std::string Hexadecimal(std::string_view bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    text += {kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
  return text;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    if (size == 0) return false;
    bytes.remove_prefix(size);
  }
  return true;
}

json_t* NewString(std::string_view text) {
  return json_stringn_nocheck(text.data(), text.size());
}

}  // namespace

void PrepareJson() { json_set_alloc_funcs(Allocate, Free); }

JsonMemoryLimit::JsonMemoryLimit(std::size_t bytes) { memory_limit = bytes; }
JsonMemoryLimit::~JsonMemoryLimit() { memory_limit = kNoLimit; }

json_t* NewText(std::string_view bytes) {
  if (IsUtf8(bytes)) return NewString(bytes);
  json_t* text = json_object();
  Set(text, "bytes", NewString(Hexadecimal(bytes)));
  return text;
}

json_t* NewShownText(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    text += size ? bytes.substr(0, size) : "\uFFFD";
    bytes.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return NewString(text);
}

json_t* NewTexts(const std::vector<std::string>& texts,
                 json_t* (*make)(std::string_view bytes)) {
  json_t* array = json_array();
  for (const std::string& text : texts) {
    json_array_append_new(array, make(text));
  }
  return array;
}

json_t* NewNumber(double number) {
  constexpr double kLargestInteger = 9007199254740992.0;  // 2^53
  const bool is_integer = number == std::trunc(number) &&
                          std::abs(number) <= kLargestInteger &&
                          !(number == 0 && std::signbit(number));
  if (is_integer) {
    return json_integer(static_cast<json_int_t>(number));
  }
  return json_real(number);
}

const char* WordOfNumber(double number) {
  if (std::isnan(number)) return "NaN";
  if (std::isinf(number)) return number < 0 ? "-Infinity" : "Infinity";
  return nullptr;
}

json_t* NewShownNumber(double number) {
  const char* word = WordOfNumber(number);
  return word ? json_string(word) : NewNumber(number);
}

void Set(json_t* object, const char* key, json_t* value) {
  json_object_set_new_nocheck(object, key, value);
}

void PrintJson(const json_t* value, std::size_t flags, std::FILE* output) {
  json_dump_callback(value, PrintEscapingDelete, output,
                     flags | JSON_ENSURE_ASCII | JSON_ENCODE_ANY);
}
