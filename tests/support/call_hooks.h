// What the calls of the C library do in a test: fail on demand, or let the
// test act in their midst. A test linked with this calls these functions.
// Until it asks for more, they only call the C library.
#pragma once

#include <functional>
#include <string>

// Called before each faults::Call but an allocation, where it is set, with the
// path of what is unlinked. Its own calls are not hooked.
extern std::function<void(unsigned int calls, const std::string& path)>
    before_call;

// The home directory of every user in the password database, where it is set;
// "" for a database that knows nobody.
extern const char* home_in_password_database;

namespace faults {

// The calls that can fail. The values are bits: a fault can cover several.
enum Call : unsigned int {
  kOpen = 1 << 0,  // openat and openat2
  kRead = 1 << 1,
  kWrite = 1 << 2,
  kClose = 1 << 3,
  kMkdir = 1 << 4,
  kUnlink = 1 << 5,
  kRmdir = 1 << 6,
  kOpendir = 1 << 7,
  kReaddir = 1 << 8,    // readdir and getdents64
  kStat = 1 << 9,       // stat, fstat and fstatat
  kAllocate = 1 << 10,  // malloc, calloc, realloc, and so operator new
  kCreate = 1 << 11,    // the open calls that create or empty a file
  kOpenat2 = 1 << 12,
  kWait = 1 << 13,  // usleep

  // The calls that change the disk.
  kChangesDisk = kCreate | kWrite | kMkdir | kUnlink | kRmdir,
};

enum class Effect {
  kFail,         // the call fails
  kFailOnwards,  // the call and all later ones fail
  kKill,         // the process ends before the call
  // The call reads or writes half of its bytes:
  kShort,
  kDiskFull,     // later writes fail until a file is removed
  kKillHalfway,  // the process ends
};

struct Fault {
  const char* name;
  unsigned int calls;
  Effect effect;
  int error = 0;  // errno of a call that fails
};

// A sanitizer brings its own allocator.
inline constexpr bool kAllocationsCanFail = SANITIZED == 0;

// The n-th call among those of the fault, from 0, meets it. Replaces the fault
// that was armed before.
void Arm(const Fault& fault, int n);
// Ends the injection. True when the fault was met.
bool Disarm();

// The exit status of a killed process.
inline constexpr int kKilled = 77;

}  // namespace faults
