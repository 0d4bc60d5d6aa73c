// Links in places where a directory was made.
#pragma once

#include "settings/simple_string.h"

// True when one of the directories that lead from `directory` down to the last
// component of `path` is a symbolic link. `directory` itself may be one, and
// so may the last component. `path` begins with `directory` and a "/". False
// when either is without a text.
[[nodiscard]] bool LeadsThroughLink(const SASM::SimpleString& directory,
                                    const SASM::SimpleString& path);
