// Numbers as settings images hold them: most significant byte first.
#pragma once

#include <concepts>

namespace SMImplementation {

template <std::unsigned_integral Number>
Number LoadBigEndian(const unsigned char* bytes) {
  Number number = 0;
  for (unsigned int i = 0; i < sizeof(Number); ++i) {
    number = static_cast<Number>(number << 8 | bytes[i]);
  }
  return number;
}

template <std::unsigned_integral Number>
void StoreBigEndian(Number number, unsigned char* bytes) {
  for (unsigned int i = sizeof(Number); i-- > 0;) {
    bytes[i] = static_cast<unsigned char>(number);
    number = static_cast<Number>(number >> 8);
  }
}

}  // namespace SMImplementation
