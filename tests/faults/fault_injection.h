// Failing system calls and allocations, on demand.
#pragma once

// A program linked with this calls its functions instead of the C library's.
// While no fault is armed they only call the C library.
namespace faults {

// The calls that can fail. The values are bits: a fault can cover several.
enum Call : unsigned int {
  kOpen = 1 << 0,  // open, openat and openat2
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
  kOpenat2 = 1 << 12,
  kCreate = 1 << 11,  // the open calls that create or empty a file

  // The calls that change the disk.
  kChangesDisk = kCreate | kWrite | kMkdir | kUnlink | kRmdir,
};

enum class Effect {
  kFail,         // the call fails
  kFailOnwards,  // the call and all later ones fail
  kShortWrite,   // the call writes half of its bytes
  // The call writes half of its bytes, later ones nothing until a file is
  // removed.
  kDiskFull,
  kKill,         // the process ends before the call
  kKillHalfway,  // the process ends after half of the bytes
};

struct Fault {
  const char* name;
  unsigned int calls;
  Effect effect;
  int error;  // errno of a call that fails
};

// A sanitizer brings its own allocator.
#ifdef __SANITIZE_ADDRESS__
inline constexpr bool kAllocationsCanFail = false;
#else
inline constexpr bool kAllocationsCanFail = true;
#endif

// The n-th call among those of the fault, from 0, meets it. Replaces the fault
// that was armed before.
void Arm(const Fault& fault, int n);
// Ends the injection. True when the fault was met.
bool Disarm();

// The exit status of a killed process.
inline constexpr int kKilled = 77;

}  // namespace faults
