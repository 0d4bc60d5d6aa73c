// Trees deeper than a path can say, and walks with little to walk on.
#pragma once

#include <functional>
#include <string>

// Makes `path` with `depth` directories in each other, a file and a link in
// every hundredth.
void MakeDeepTree(const std::string& path, int depth,
                  const std::string& link_target);

// Calls `action` with 256 KiB of stack.
void OnSmallStack(const std::function<void()>& action);
