// The growable array of owned elements behind every list of the program.
#pragma once

#include <algorithm>

namespace SMImplementation {

// An array of pointers to elements that it owns. A subclass says what an
// element is by two operations: how to copy one in and how to destroy one.
//
// Starts with room for kInitialCapacity elements and doubles when full; only
// the pointers move, never the elements. Callers walk `elements` from 0 to
// `count` - 1 and change neither.
class PointerVector {
 public:
  static constexpr unsigned int kInitialCapacity = 10;

  PointerVector();
  // Frees the array, not the elements: see subclassDestructorDeleteElements.
  virtual ~PointerVector();
  PointerVector(const PointerVector&) = delete;
  PointerVector& operator=(const PointerVector&) = delete;

  // Destroys one element; null is ignored.
  virtual void deleteElement(void* element) = 0;
  // A new element made from the given one; null when memory is short.
  virtual void* copyElement(const void* element) = 0;

  // Appends copyElement(element); the caller keeps `element`. False when
  // memory is short: the vector is then as before.
  bool addElement(const void* element);

  // Appends `element` itself, which the vector owns from here on. False when
  // memory is short, also for null: the element is then destroyed.
  bool adoptElement(void* element);

  // Destroys the element and closes the gap. An index out of range is ignored.
  void removeElementAtIndex(unsigned int index);

  // Destroys the elements that `is_unwanted`, given a void*, is true of, and
  // closes the gaps. Asks from the last element to the first.
  template <typename Predicate>
  void removeElementsIf(Predicate is_unwanted) {
    for (unsigned int i = count; i-- > 0;) {
      if (!is_unwanted(elements[i])) continue;
      deleteElement(elements[i]);
      elements[i] = nullptr;
    }
    void** end = std::remove(elements, elements + count, nullptr);
    count = static_cast<unsigned int>(end - elements);
  }

  // Destroys every element. Each subclass calls it first in its destructor,
  // where its own deleteElement can still be reached.
  void subclassDestructorDeleteElements();

  void** elements;
  unsigned int count = 0;
  unsigned int capacity;

 private:
  bool Grow();
};

}  // namespace SMImplementation
