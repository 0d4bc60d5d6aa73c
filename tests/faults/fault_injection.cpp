#include "tests/faults/fault_injection.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <type_traits>

// The C library's own; dlsym cannot find them, since it allocates itself.
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
}

namespace {

struct State {
  bool armed = false;
  faults::Fault fault = {};
  int calls_left = 0;
  bool met = false;
  bool is_full = false;  // the disk, until a file is removed
};
State state;

// What a call does.
enum class Verdict { kPass, kFail, kHalf, kHalfThenEnd };

Verdict MeetFault() {
  using faults::Effect;
  state.met = true;
  state.is_full = state.fault.effect == Effect::kDiskFull;
  switch (state.fault.effect) {
    case Effect::kFail:
    case Effect::kFailOnwards:
      break;
    case Effect::kShortWrite:
    case Effect::kDiskFull:
      return Verdict::kHalf;
    case Effect::kKill:
      _exit(faults::kKilled);
    case Effect::kKillHalfway:
      return Verdict::kHalfThenEnd;
  }
  return Verdict::kFail;
}

// The calls that fail once the fault has been met.
unsigned int LaterFailures() {
  using faults::Effect;
  if (state.fault.effect == Effect::kFailOnwards) return state.fault.calls;
  return state.is_full ? faults::kWrite | faults::kMkdir | faults::kCreate : 0U;
}

Verdict Judge(unsigned int call) {
  if (!state.armed) return Verdict::kPass;
  if (call & faults::kUnlink) state.is_full = false;
  if (state.met) {
    return call & LaterFailures() ? Verdict::kFail : Verdict::kPass;
  }
  const bool counts = call & state.fault.calls;
  return counts && state.calls_left-- == 0 ? MeetFault() : Verdict::kPass;
}

// True when the call must fail; errno is then set.
bool Fails(unsigned int call) {
  if (Judge(call) == Verdict::kPass) return false;
  errno = state.fault.error;
  return true;
}

unsigned int OpenCalls(int flags) {
  const bool creates = flags & (O_CREAT | O_TRUNC);
  return faults::kOpen | (creates ? faults::kCreate : 0U);
}

// The C library's function of that name.
template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Calls the function of that name in the C library, or fails with `failure`.
template <typename Result, typename... Arguments>
Result Pass(unsigned int call, Result (*)(Arguments...), const char* name,
            std::type_identity_t<Result> failure,
            std::type_identity_t<Arguments>... arguments) {
  if (Fails(call)) return failure;
  return Next<Result(Arguments...)>(name)(arguments...);
}

}  // namespace

namespace faults {

void Arm(const Fault& fault, int n) { state = {true, fault, n}; }

bool Disarm() {
  state.armed = false;
  return state.met;
}

}  // namespace faults

extern "C" {

#ifndef __SANITIZE_ADDRESS__
// For operator new and for what the C library allocates itself. A sanitizer has
// functions of its own.
#pragma GCC visibility push(default)
void* malloc(std::size_t size) {
  return Fails(faults::kAllocate) ? nullptr : __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
  return Fails(faults::kAllocate) ? nullptr : __libc_calloc(count, size);
}
void* realloc(void* memory, std::size_t size) {
  return Fails(faults::kAllocate) ? nullptr : __libc_realloc(memory, size);
}
#pragma GCC visibility pop
#endif

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static auto* next = Next<int(const char*, int, ...)>("open");
  return Fails(OpenCalls(flags)) ? -1 : next(path, flags, mode);
}

int openat(int directory, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static auto* next = Next<int(int, const char*, int, ...)>("openat");
  return Fails(OpenCalls(flags)) ? -1 : next(directory, path, flags, mode);
}

// The two above under _FORTIFY_SOURCE, when the flags are not constant.
int __open_2(const char* path, int flags) { return open(path, flags); }
int __openat_2(int directory, const char* path, int flags) {
  return openat(directory, path, flags);
}

ssize_t read(int file, void* bytes, std::size_t size) {
  return Pass(faults::kRead, read, "read", -1, file, bytes, size);
}

ssize_t write(int file, const void* bytes, std::size_t size) {
  static auto* next = Next<ssize_t(int, const void*, std::size_t)>("write");
  const Verdict verdict = Judge(faults::kWrite);
  if (verdict == Verdict::kPass) return next(file, bytes, size);
  const bool is_half = verdict != Verdict::kFail && size > 1;
  const ssize_t written = is_half ? next(file, bytes, size / 2) : -1;
  if (verdict == Verdict::kHalfThenEnd) _exit(faults::kKilled);
  if (!is_half) errno = state.fault.error;
  return written;
}

// On Linux the descriptor is closed even when the call fails.
int close(int file) {
  static auto* next = Next<int(int)>("close");
  const int result = next(file);
  return Fails(faults::kClose) ? -1 : result;
}

// The one that the program has no function for.
long syscall(long number, ...) {
  va_list arguments;
  va_start(arguments, number);
  const int directory = va_arg(arguments, int);
  const char* path = va_arg(arguments, const char*);
  void* how = va_arg(arguments, void*);
  const std::size_t size = va_arg(arguments, std::size_t);
  va_end(arguments);
  static auto* next = Next<long(long, ...)>("syscall");
  const bool fails =
      number == SYS_openat2 && Fails(faults::kOpen | faults::kOpenat2);
  return fails ? -1 : next(number, directory, path, how, size);
}

int mkdirat(int directory, const char* path, mode_t mode) {
  return Pass(faults::kMkdir, mkdirat, "mkdirat", -1, directory, path, mode);
}
int unlinkat(int directory, const char* path, int flags) {
  const auto call = flags & AT_REMOVEDIR ? faults::kRmdir : faults::kUnlink;
  return Pass(call, unlinkat, "unlinkat", -1, directory, path, flags);
}

DIR* fdopendir(int directory) {
  return Pass(faults::kOpendir, fdopendir, "fdopendir", nullptr, directory);
}
dirent* readdir(DIR* directory) {
  return Pass(faults::kReaddir, readdir, "readdir", nullptr, directory);
}
ssize_t getdents64(int directory, void* buffer, std::size_t size) {
  return Pass(faults::kReaddir, getdents64, "getdents64", -1, directory, buffer,
              size);
}

int stat(const char* path, struct stat* info) {
  return Pass(faults::kStat, stat, "stat", -1, path, info);
}
int fstat(int file, struct stat* info) {
  return Pass(faults::kStat, fstat, "fstat", -1, file, info);
}
int fstatat(int directory, const char* path, struct stat* info, int flags) {
  return Pass(faults::kStat, fstatat, "fstatat", -1, directory, path, info,
              flags);
}

// The home directory in the password database: the program's choice when HOME
// gives none.
passwd* getpwuid(uid_t) {
  static passwd user = {};
  user.pw_dir = std::getenv("PASSWORD_DATABASE_HOME");
  return user.pw_dir ? &user : nullptr;
}

}  // extern "C"
