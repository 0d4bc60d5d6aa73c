// The system's own calls, as bare as they can be made.
#pragma once

#include <string>
#include <vector>

// unlink, open to create, write, close.
void RewriteFile(const char* path, const char* bytes, std::size_t size);
// open, read, close; the number of bytes.
std::size_t ReadFile(const char* path, std::vector<char>* buffer);

// openat, getdents64, unlinkat. Descends by one open directory at a time and
// comes back through "..".
void RemoveTree(const std::string& path);
// openat, getdents64, fstatat, likewise; the sum of all sizes.
std::size_t SizeOfTree(const std::string& path);

// Runs the program and waits for it, its output dropped.
void RunProgram(const std::vector<std::string>& arguments);
