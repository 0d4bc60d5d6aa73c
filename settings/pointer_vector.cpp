#include "settings/pointer_vector.h"

#include <new>

namespace SMImplementation {

PointerVector::PointerVector() : elements(new void*[kInitialCapacity]) {}

PointerVector::~PointerVector() { delete[] elements; }

bool PointerVector::addElement(const void* element) {
  return adoptElement(copyElement(element));
}

bool PointerVector::adoptElement(void* element) {
  if (count == capacity && !Grow()) {
    deleteElement(element);
    return false;
  }
  elements[count++] = element;
  return true;
}

bool PointerVector::Grow() {
  const unsigned int grown_capacity = capacity * 2;
  void** grown = new (std::nothrow) void*[grown_capacity];
  if (!grown) return false;
  std::copy_n(elements, count, grown);
  delete[] elements;
  elements = grown;
  capacity = grown_capacity;
  return true;
}

void PointerVector::removeElementAtIndex(unsigned int index) {
  if (index >= count) return;
  deleteElement(elements[index]);
  std::copy(elements + index + 1, elements + count, elements + index);
  --count;
}

void PointerVector::subclassDestructorDeleteElements() {
  std::for_each_n(elements, count, [this](void* e) { deleteElement(e); });
}

}  // namespace SMImplementation
