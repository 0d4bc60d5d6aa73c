#include "cli/json_writer.h"

#include <algorithm>
#include <cinttypes>
#include <cmath>
#include <cstdio>

#include "cli/plain_text.h"
#include "strings/utf8.h"

namespace {

void PrintQuoted(std::string_view bytes) {
  std::putchar('"');
  while (!bytes.empty()) {
    const std::size_t size = NCPStrings::SequenceLength(bytes);
    const char first = bytes[0];
    if (size == 0) {
      std::fputs("\\uFFFD", stdout);
    } else if (size == 1 && first >= '\0' && first < ' ') {
      std::printf("\\u%04X", static_cast<unsigned int>(first));
    } else {
      if (first == '"' || first == '\\') std::putchar('\\');
      std::fwrite(bytes.data(), 1, size, stdout);
    }
    bytes.remove_prefix(std::max<std::size_t>(size, 1));
  }
  std::putchar('"');
}

}  // namespace

JsonWriter& JsonWriter::Key(std::string_view key) {
  Text(key);
  std::putchar(':');
  needs_comma_ = false;
  return *this;
}

void JsonWriter::Text(std::string_view bytes) {
  Separate();
  PrintQuoted(bytes);
}

void JsonWriter::Number(double number) {
  if (std::isnan(number)) return Text("NaN");
  if (std::isinf(number)) return Text(number < 0 ? "-Infinity" : "Infinity");
  Separate();
  std::fputs(Decimal(number).c_str(), stdout);
}

void JsonWriter::Integer(std::uint64_t number) {
  Separate();
  std::printf("%" PRIu64, number);
}

void JsonWriter::Boolean(bool boolean) {
  Separate();
  std::fputs(boolean ? "true" : "false", stdout);
}

void JsonWriter::EndLine() { std::putchar('\n'); }

void JsonWriter::Open(char bracket) {
  Separate();
  std::putchar(bracket);
  needs_comma_ = false;
}

void JsonWriter::Close(char bracket) {
  std::putchar(bracket);
  needs_comma_ = true;
}

void JsonWriter::Separate() {
  if (needs_comma_) std::putchar(',');
  needs_comma_ = true;
}
