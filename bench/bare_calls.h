// The system's own calls, as bare as they can be made.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>
#include <vector>

// unlink, open to create, write, close.
void RewriteFile(const std::string& path, std::string_view bytes);
// open, read, close; as many bytes as the buffer takes.
void ReadFile(const std::string& path, std::vector<char>* buffer);

// openat, getdents64, unlinkat. Descends by one open directory at a time and
// comes back through "..".
void RemoveTree(const std::string& path);
// openat, getdents64, fstatat, likewise; the sum of all sizes.
std::size_t SizeOfTree(const std::string& path);

// Starts the program, its output dropped.
[[nodiscard]] pid_t StartProgram(std::vector<std::string> arguments);
// Starts it and waits for it.
void RunProgram(const std::vector<std::string>& arguments);
