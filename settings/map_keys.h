// The keys of a map as a list.
#pragma once

#include "settings/hash_map.h"
#include "settings/string_vector.h"

namespace SASM {

// Copies of all keys in dictionary order. The caller owns the list.
template <typename V>
[[nodiscard]] StringVector* NewListOfKeys(
    const HashMap<SimpleString, V, hashSS>& map) {
  auto* keys = new StringVector;
  for (const auto& entry : map) keys->addElement(&entry.key);
  return keys;
}

}  // namespace SASM
