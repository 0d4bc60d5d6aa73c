// An owned, zero-terminated byte string.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace SASM {

// A text up to its first zero byte. The bytes are kept as they come; the
// encoding is up to the caller. Every copy is deep.
//
// Always holds a text, the empty text at least. Only a failed AppendString
// leaves it without one: c_str() is then null, and the string may only be
// assigned to or destroyed.
class SimpleString {
 public:
  SimpleString() : text_(EmptyText()) {}
  // Null gives the empty text. Implicit: a literal can be passed wherever a
  // string is expected.
  SimpleString(const char* text);  // NOLINT(google-explicit-constructor)
  SimpleString(const SimpleString& other);
  // Leaves `other` empty.
  SimpleString(SimpleString&& other) noexcept
      : text_(std::exchange(other.text_, EmptyText())) {}
  ~SimpleString() { Free(); }

  // The first `size` bytes, cut at the first zero byte among them.
  static SimpleString FromBytes(const unsigned char* bytes, std::size_t size);

  // The parts one after another; none holds a zero byte.
  static SimpleString Joined(std::initializer_list<std::string_view> parts);

  // A new array with a copy of `text` and its zero byte; of the empty text for
  // null. The caller frees it with delete[].
  [[nodiscard]] static char* CopyString(const char* text);

  // Appends a copy of `text`; null appends nothing. False when the new array
  // cannot be allocated: the string is then without a text.
  bool AppendString(const char* text);

  // The result is a copy of the string after the assignment, not a reference.
  SimpleString operator=(const SimpleString& other);  // NOLINT
  void operator=(SimpleString&& other) noexcept {     // NOLINT
    std::swap(text_, other.text_);
  }

  // Borrowed; valid until the string changes.
  [[nodiscard]] const char* c_str() const { return text_; }
  [[nodiscard]] bool IsEmpty() const { return !*text_; }

 private:
  struct Adopted {
    char* text;
  };
  explicit SimpleString(Adopted adopted) : text_(adopted.text) {}

  // Shared by all empty strings that have no array; never written to.
  static char* EmptyText() { return const_cast<char*>(&kEmptyText); }
  void Free() {
    if (text_ != EmptyText()) delete[] text_;
  }

  static constexpr char kEmptyText = '\0';
  char* text_;
};

// Byte for byte, case-sensitive.
[[nodiscard]] bool operator==(const SimpleString& a, const SimpleString& b);

// The hash of the settings dictionaries: the sum of all bytes, each as a
// signed 8-bit value, modulo 2^32. The empty text hashes to 0.
[[nodiscard]] unsigned int hashSS(const SimpleString& text);

}  // namespace SASM
