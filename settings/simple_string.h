// An owned, zero-terminated byte string.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <utility>

namespace SASM {

// Bytes as they were received, up to their first zero byte; their encoding is
// the caller's affair. Every copy is deep.
//
// A string always holds a text, the empty text at least. Only when memory
// could not be had is it without one: c_str() is then null, appending fails,
// and the string equals no other. Such a string is never a usable path or key.
class SimpleString {
 public:
  SimpleString() : text_(EmptyText()) {}
  // Null gives the empty text. Implicit: a literal is good wherever a string
  // is asked for.
  SimpleString(const char* text);  // NOLINT(google-explicit-constructor)
  SimpleString(const SimpleString& other);
  // Leaves `other` without a text, fit only to be assigned to or destroyed.
  SimpleString(SimpleString&& other) noexcept
      : text_(std::exchange(other.text_, nullptr)) {}
  ~SimpleString() { Free(); }

  // As when memory could not be had.
  static SimpleString WithoutText() { return SimpleString(Adopted{nullptr}); }

  // The first `size` bytes, cut before the first zero byte among them.
  static SimpleString FromBytes(const unsigned char* bytes, std::size_t size);

  // The parts one after another; without a text when one of them is null.
  static SimpleString Joined(std::initializer_list<const char*> parts);

  // A new array with a copy of `text` and its zero, of the empty text for
  // null. The caller frees it with delete[]. Null when memory is short.
  [[nodiscard]] static char* CopyString(const char* text);

  // Appends a copy of `text`; null appends nothing. False when memory is
  // short, and when the string was without a text before: it is without one
  // afterwards. A chain of appends may be checked once, at its end.
  bool AppendString(const char* text);

  // The result is a copy of the string after the assignment, not a reference.
  SimpleString operator=(const SimpleString& other);  // NOLINT
  void operator=(SimpleString&& other) noexcept {     // NOLINT
    std::swap(text_, other.text_);
  }

  // Borrowed; valid until the string changes. Null without a text.
  [[nodiscard]] const char* c_str() const { return text_; }
  [[nodiscard]] bool HasText() const { return text_ != nullptr; }
  [[nodiscard]] bool IsEmpty() const { return !text_ || !*text_; }

 private:
  struct Adopted {
    char* text;
  };
  explicit SimpleString(Adopted adopted) : text_(adopted.text) {}

  // Shared by all strings that were never given a text, and never written to.
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
