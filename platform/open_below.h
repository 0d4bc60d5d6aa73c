// The one gate to what is below a trusted directory.
#pragma once

#include <string_view>

#include "platform/file_descriptor.h"

// Opens the directory at `path`, for calls such as openat(2) and unlinkat(2)
// only (O_PATH). `path` is `trusted` itself or begins with it and a slash.
// `trusted` may be a symbolic link and may be reached over links; below it no
// link is followed, whatever is swapped in meanwhile.
//
// On failure errno says why. A link on the way gives ELOOP or ENOTDIR, a
// component ".." that leads out of `trusted` and any other path give EXDEV.
[[nodiscard]] FileDescriptor OpenBelow(std::string_view trusted,
                                       const char* path);
