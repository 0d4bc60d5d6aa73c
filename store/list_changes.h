// Changes of the list of domains that wait to be written.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>

#include "store/settings_manager.h"

namespace SASM {

// What a ListWriteGuard holds back.
class SettingsManager::ListChanges {
 public:
  // Searched without making a string of what is searched for.
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  using Names = std::unordered_multiset<std::string, Hash, std::equal_to<>>;

  // True for a listed site that is not to be removed. `domains` is the list.
  [[nodiscard]] bool IsListed(const SimpleString& site,
                              const SDIVector& domains);
  // `site` has been appended to the list.
  void NoteAppended(const SimpleString& site);
  // An element of this name, the last one, is to be removed from the list if
  // it has one.
  void NoteRemoved(const SimpleString& site);

  // The list has been replaced by another.
  void Forget();

  [[nodiscard]] bool IsEmpty() const { return !is_changed_; }
  void RemoveFrom(SDIVector* domains);

 private:
  // The names that the list will have; made when they are first asked for.
  std::optional<Names> names_;
  // A name for each element that is to be removed. Until `names_` is made,
  // there may also be names that are not listed.
  Names removed_;
  bool is_changed_ = false;
};

}  // namespace SASM
