// What a user may have meant by a name that is unknown.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/store_view.h"

class UnknownSites {
 public:
  // The store is borrowed.
  explicit UnknownSites(const StoreView& store) : store_(store) {}

  // Prints "no such site; did you mean A, B?" with the known sites that differ
  // from the name in case only or are above or below it, and the advice.
  void Report(std::string_view name, std::string_view advice = "");

 private:
  [[nodiscard]] std::string Suggestion(std::string_view name);

  const StoreView& store_;
  // Read for the first report.
  std::optional<std::vector<std::string>> known_;
};
