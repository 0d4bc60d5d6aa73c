// Lists of strings.
#pragma once

#include "settings/pointer_vector.h"
#include "settings/simple_string.h"

namespace SASM {

// A PointerVector whose elements are SimpleString.
class StringVector : public SMImplementation::PointerVector {
 public:
  ~StringVector() override;
  void deleteElement(void* element) override;
  void* copyElement(const void* element) override;

  // Borrowed, null without a text. `index` is below count.
  [[nodiscard]] const char* TextAt(unsigned int index) const;
};

}  // namespace SASM

// A directory listing, in natural order once it has been sorted.
class SortableStringVector : public SASM::StringVector {
 public:
  // Sorts in place with CompareNaturally; what it calls equal may end up in
  // any order.
  void Sort();
};

// The natural order: negative when `a` comes first, 0 when the two count as
// equal, positive when `b` comes first. Two texts that begin with a decimal
// digit compare by their leading numbers alone, cut to 32 bits. Otherwise the
// first differing byte decides: letters without regard to ASCII case, digits
// after everything else, bytes of 0x80 and above before everything else, the
// end of a text included. Equality is not transitive ("Ab" equals "aC").
[[nodiscard]] int CompareNaturally(const char* a, const char* b);
