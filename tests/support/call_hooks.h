// What a test does in the middle of a call of the program.
#pragma once

#include <functional>
#include <string>

// Called before a file is removed, with the path of the directory and the
// name, where it is set.
extern std::function<void(const std::string& directory,
                          const std::string& name)>
    before_unlink;

// Called in the place of usleep(3), where it is set.
extern std::function<void()> instead_of_waiting;

// How many calls of openat(2) there have been.
extern int openat_calls;
