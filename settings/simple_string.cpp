#include "settings/simple_string.h"

#include <cstring>
#include <new>
#include <utility>

namespace SASM {
namespace {

// Room for `size` bytes and a zero, the zero set; null when memory is short.
char* NewText(const void* bytes, std::size_t size) {
  char* text = new (std::nothrow) char[size + 1];
  if (!text) return nullptr;
  if (size) std::memcpy(text, bytes, size);
  text[size] = '\0';
  return text;
}

}  // namespace

char* SimpleString::CopyString(const char* text) {
  return NewText(text, text ? std::strlen(text) : 0);
}

SimpleString::SimpleString() : text_(CopyString(nullptr)) {}

SimpleString::SimpleString(const char* text) : text_(CopyString(text)) {}

SimpleString::SimpleString(const SimpleString& other)
    : text_(other.text_ ? CopyString(other.text_) : nullptr) {}

SimpleString::SimpleString(SimpleString&& other) noexcept
    : text_(std::exchange(other.text_, nullptr)) {}

SimpleString::~SimpleString() { delete[] text_; }

SimpleString SimpleString::FromBytes(const unsigned char* bytes,
                                     std::size_t size) {
  const void* zero = size ? std::memchr(bytes, 0, size) : nullptr;
  if (zero) size = static_cast<const unsigned char*>(zero) - bytes;
  return SimpleString(Adopted{NewText(bytes, size)});
}

bool SimpleString::AppendString(const char* text) {
  if (!text) return true;
  if (!text_) return false;
  const std::size_t old_size = std::strlen(text_);
  const std::size_t added_size = std::strlen(text);
  char* joined = new (std::nothrow) char[old_size + added_size + 1];
  if (joined) {
    std::memcpy(joined, text_, old_size);
    std::memcpy(joined + old_size, text, added_size + 1);
  }
  delete[] text_;
  text_ = joined;
  return joined != nullptr;
}

SimpleString SimpleString::operator=(const SimpleString& other) {  // NOLINT
  if (this != &other) *this = SimpleString(other);
  return *this;
}

void SimpleString::operator=(SimpleString&& other) noexcept {  // NOLINT
  std::swap(text_, other.text_);
}

bool operator==(const SimpleString& a, const SimpleString& b) {
  return a.c_str() && b.c_str() && std::strcmp(a.c_str(), b.c_str()) == 0;
}

unsigned int hashSS(const SimpleString& text) {
  unsigned int sum = 0;
  for (const char* byte = text.c_str(); byte && *byte; ++byte) {
    sum += static_cast<unsigned int>(static_cast<signed char>(*byte));
  }
  return sum;
}

}  // namespace SASM
