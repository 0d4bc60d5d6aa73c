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

  // Borrowed. `index` is below count.
  [[nodiscard]] const char* TextAt(unsigned int index) const;
};

}  // namespace SASM

// A directory listing, which Sort puts in natural order.
class SortableStringVector : public SASM::StringVector {
 public:
  // Sorts in place with CompareNaturally. Elements that compare as equal may
  // end up in any order.
  void Sort();
};

// The natural order: negative when `a` comes first, 0 when the two count as
// equal, positive when `b` comes first. Two texts that begin with a decimal
// digit compare by their leading numbers alone, cut to 32 bits. Otherwise the
// first differing byte decides: letters compare without regard to ASCII case,
// digits come after everything else, bytes of 0x80 and above before everything
// else, even before the end of a text. Equality is not transitive ("Ab" equals
// "aC").
[[nodiscard]] int CompareNaturally(const char* a, const char* b);
