// The growable array of owned elements behind every list of the program.
#pragma once

#include <algorithm>

namespace SMImplementation {

// An array of pointers to elements that it owns. A subclass fixes the type of
// the elements by two operations: how to copy one in and how to destroy one.
//
// Starts with room for kInitialCapacity elements and doubles when full; the
// pointers move, the elements stay where they are. Callers walk `elements`
// from 0 to `count` - 1 and change neither.
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
  // A new element made from the given one.
  virtual void* copyElement(const void* element) = 0;

  // Appends copyElement(element); the caller keeps `element`. False when the
  // array cannot grow: the vector is then as before.
  bool addElement(const void* element);

  // Appends `element` itself, which the vector owns from here on. False when
  // the array cannot grow: the element is then destroyed.
  bool adoptElement(void* element);

  // Destroys the element and closes the gap. An index out of range is ignored.
  void removeElementAtIndex(unsigned int index);

  // Destroys the elements for which `is_unwanted`, given a void*, is true, and
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

  // Destroys every element. Each subclass calls it first in its destructor:
  // the base destructor can no longer reach the subclass's deleteElement.
  void subclassDestructorDeleteElements();

  void** elements;
  unsigned int count = 0;
  unsigned int capacity = kInitialCapacity;

 private:
  bool Grow();
};

}  // namespace SMImplementation
