// The age of files.
#pragma once

// True when the tree at `way` below the directory `trusted` holds a file, or
// anything else but a directory, that was changed longer ago than this,
// or cannot be opened. Follows no link.
[[nodiscard]] bool HasFileOlderThan(const char* trusted, const char* way,
                                    unsigned long age_seconds);
