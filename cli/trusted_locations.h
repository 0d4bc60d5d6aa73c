// The list of trusted locations.
#pragma once

#include <string>
#include <vector>

#include "cli/changes.h"

// Appends the paths that are not there, each once.
void AddLocations(const std::vector<std::string>& paths,
                  std::vector<std::string>* locations);

// Makes these the trusted locations, in this order. No change when they are.
[[nodiscard]] Change ChangeOfLocations(
    const std::vector<std::string>& locations, const StoreView& store);
