#include "settings/simple_string.h"

#include <cstring>
#include <new>

namespace SASM {

char* SimpleString::CopyString(const char* text) {
  if (!text) text = "";
  const std::size_t size = std::strlen(text) + 1;
  char* copy = new char[size];
  std::memcpy(copy, text, size);
  return copy;
}

SimpleString::SimpleString(const char* text) : text_(CopyString(text)) {}

SimpleString::SimpleString(const SimpleString& other) : text_(other.text_) {
  if (text_ != EmptyText()) text_ = CopyString(other.text_);
}

SimpleString SimpleString::FromBytes(const unsigned char* bytes,
                                     std::size_t size) {
  const void* zero = size ? std::memchr(bytes, 0, size) : nullptr;
  if (zero) size = static_cast<const unsigned char*>(zero) - bytes;
  if (size == 0) return SimpleString();
  char* text = new char[size + 1];
  std::memcpy(text, bytes, size);
  text[size] = '\0';
  return SimpleString(Adopted{text});
}

SimpleString SimpleString::Joined(
    std::initializer_list<std::string_view> parts) {
  std::size_t size = 1;
  for (const std::string_view part : parts) size += part.size();
  char* joined = new char[size];
  char* end = joined;
  for (const std::string_view part : parts) {
    end += part.copy(end, part.size());
  }
  *end = '\0';
  return SimpleString(Adopted{joined});
}

bool SimpleString::AppendString(const char* text) {
  if (!text) return true;
  const std::size_t old_size = std::strlen(text_);
  const std::size_t added_size = std::strlen(text) + 1;
  char* joined = new (std::nothrow) char[old_size + added_size];
  if (joined) {
    std::memcpy(joined, text_, old_size);
    std::memcpy(joined + old_size, text, added_size);
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
  return std::strcmp(a.c_str(), b.c_str()) == 0;
}

unsigned int hashSS(const SimpleString& text) {
  unsigned int sum = 0;
  for (const char* byte = text.c_str(); *byte; ++byte) {
    sum += static_cast<unsigned int>(static_cast<signed char>(*byte));
  }
  return sum;
}

}  // namespace SASM
