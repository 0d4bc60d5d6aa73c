// The one gate to what is below a trusted directory.
#pragma once

#include "platform/file_descriptor.h"

// Opens the directory `way` below `trusted`, for calls such as openat(2) and
// unlinkat(2) only (O_PATH). `trusted` may be a symbolic link and may be
// reached over links; below it no link is followed, whatever is swapped in
// meanwhile. `way` is relative; the empty way is `trusted` itself.
//
// On failure errno says why. A link on the way gives ELOOP or ENOTDIR, a
// component ".." that leads out of `trusted` gives EXDEV.
[[nodiscard]] FileDescriptor OpenBelow(const char* trusted, const char* way);
