#include "settings/simple_string.h"

#include <cstring>
#include <new>

namespace SASM {
namespace {

// A copy of `size` bytes and a zero byte; for null only the room for them.
char* NewText(const void* bytes, std::size_t size) {
  char* text = new char[size + 1];
  if (bytes) std::memcpy(text, bytes, size);
  text[size] = '\0';
  return text;
}

}  // namespace

char* SimpleString::CopyString(const char* text) {
  return NewText(text, text ? std::strlen(text) : 0);
}

SimpleString::SimpleString(const char* text) : text_(CopyString(text)) {}

SimpleString::SimpleString(const SimpleString& other) : text_(other.text_) {
  if (text_ && text_ != EmptyText()) text_ = CopyString(other.text_);
}

SimpleString SimpleString::FromBytes(const unsigned char* bytes,
                                     std::size_t size) {
  const void* zero = size ? std::memchr(bytes, 0, size) : nullptr;
  if (zero) size = static_cast<const unsigned char*>(zero) - bytes;
  return size ? SimpleString(Adopted{NewText(bytes, size)}) : SimpleString();
}

SimpleString SimpleString::Joined(std::initializer_list<const char*> parts) {
  std::size_t size = 0;
  for (const char* part : parts) {
    if (!part) return WithoutText();
    size += std::strlen(part);
  }
  char* joined = NewText(nullptr, size);
  char* end = joined;
  for (const char* part : parts) {
    end = stpcpy(end, part);
  }
  return SimpleString(Adopted{joined});
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
  Free();
  text_ = joined;
  return joined != nullptr;
}

SimpleString SimpleString::operator=(const SimpleString& other) {  // NOLINT
  if (this != &other) *this = SimpleString(other);
  return *this;
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
