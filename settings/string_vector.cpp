#include "settings/string_vector.h"

#include <cstdint>
#include <cstdlib>

namespace SASM {

StringVector::~StringVector() { subclassDestructorDeleteElements(); }

void StringVector::deleteElement(void* element) {
  delete static_cast<SimpleString*>(element);
}

void* StringVector::copyElement(const void* element) {
  return new SimpleString(*static_cast<const SimpleString*>(element));
}

const char* StringVector::TextAt(unsigned int index) const {
  return static_cast<const SimpleString*>(elements[index])->c_str();
}

}  // namespace SASM

namespace {

bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }

std::int32_t LeadingNumber(const char* text) {
  return static_cast<std::int32_t>(std::strtol(text, nullptr, 10));
}

// The place of a differing byte in the order. Folds ASCII itself: tolower
// depends on the locale and is undefined for negative values.
int Rank(char byte) {
  // Bytes of 0x80 and above rank below all others.
  // NOLINTNEXTLINE(bugprone-signed-char-misuse)
  const int value = static_cast<signed char>(byte);
  if (value >= 'A' && value <= 'Z') return value - 'A' + 'a';
  return IsDigit(byte) ? value + 256 : value;
}

int CompareElements(const void* a, const void* b) {
  const auto text = [](const void* slot) {
    const void* element = *static_cast<void* const*>(slot);
    return static_cast<const SASM::SimpleString*>(element)->c_str();
  };
  return CompareNaturally(text(a), text(b));
}

}  // namespace

int CompareNaturally(const char* a, const char* b) {
  if (IsDigit(*a) && IsDigit(*b)) {
    const std::int32_t a_number = LeadingNumber(a);
    const std::int32_t b_number = LeadingNumber(b);
    return (a_number > b_number) - (a_number < b_number);
  }
  while (*a == *b && *a) {
    ++a;
    ++b;
  }
  return *a == *b ? 0 : Rank(*a) - Rank(*b);
}

// qsort, since std::sort may leave its range when equality is not transitive.
void SortableStringVector::Sort() {
  std::qsort(elements, count, sizeof *elements, CompareElements);
}
