#include "strings/localized_string_manager.h"

#include <algorithm>
#include <iterator>

#include "strings/string_table.h"

const char* LocalizedStringManager::GetString(int id) {
  using namespace NCPStrings;
  const auto* record = std::lower_bound(
      std::begin(NCPStringsMappingTable), std::end(NCPStringsMappingTable), id,
      [](const StringMapping& mapping, int wanted) {
        return static_cast<int>(mapping.id) < wanted;
      });
  if (record == std::end(NCPStringsMappingTable) ||
      static_cast<int>(record->id) != id) {
    return nullptr;
  }
  const auto language = static_cast<unsigned int>(GetCurrentSystemLanguageID());
  return NCPStringsConstants[language * kTextCount + record->row];
}
