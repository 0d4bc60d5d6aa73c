#include "strings/localized_string_manager.h"

#include "strings/string_table.h"

namespace NCPStrings {
namespace {

// Null when there is no such id.
const StringMapping* FindMapping(int id) {
  const StringMapping* low = NCPStringsMappingTable.data();
  const StringMapping* high = low + kTextCount;
  while (low < high) {
    const StringMapping* middle = low + (high - low) / 2;
    const int middle_id = static_cast<int>(middle->id);
    if (middle_id == id) return middle;
    if (id < middle_id) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  return nullptr;
}

}  // namespace
}  // namespace NCPStrings

const char* LocalizedStringManager::GetString(int id) {
  using namespace NCPStrings;
  const StringMapping* found = FindMapping(id);
  if (!found) return nullptr;
  const auto language = static_cast<unsigned int>(GetCurrentSystemLanguageID());
  return NCPStringsConstants[language * kTextCount + found->row];
}
