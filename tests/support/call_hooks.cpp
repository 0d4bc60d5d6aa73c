#include "tests/support/call_hooks.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <filesystem>

std::function<void(unsigned int calls, const std::string& path)> before_call;
const char* home_in_password_database = nullptr;

namespace {

struct State {
  bool armed = false;
  faults::Fault fault = {};
  int calls_left = 0;
  bool met = false;
  bool is_full = false;  // the disk, until a file is removed
};
State state;

void MeetFault() {
  state.met = true;
  state.is_full = state.fault.effect == faults::Effect::kDiskFull;
  if (state.fault.effect == faults::Effect::kKill) _exit(faults::kKilled);
}

// The calls that fail once the fault has been met.
unsigned int LaterFailures() {
  using faults::Effect;
  if (state.fault.effect == Effect::kFailOnwards) return state.fault.calls;
  return state.is_full ? faults::kWrite | faults::kMkdir | faults::kCreate : 0U;
}

std::string PathOf(int directory, const char* name) {
  const auto entry = "/proc/self/fd/" + std::to_string(directory);
  return std::filesystem::read_symlink(entry) / name;
}

// True when the call must fail; errno is then set.
bool Fails(unsigned int call, int directory = -1, const char* name = nullptr) {
  static bool is_acting = false;
  if (is_acting) return false;
  if (before_call && call != faults::kAllocate) {
    is_acting = true;
    before_call(call, name ? PathOf(directory, name) : "");
    is_acting = false;
  }
  if (!state.armed) return false;
  if (call & faults::kUnlink) state.is_full = false;
  if (state.met) {
    if (!(call & LaterFailures())) return false;
  } else {
    if (!(call & state.fault.calls) || state.calls_left-- > 0) return false;
    MeetFault();
  }
  errno = state.fault.error;
  return true;
}

// The C library's function of that name.
template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

namespace faults {

void Arm(const Fault& fault, int n) { state = {true, fault, n}; }

bool Disarm() {
  state.armed = false;
  return state.met;
}

}  // namespace faults

using enum faults::Call;

// A function of the C library that fails with `failure` when the call that
// follows, of which the path may be known, must fail.
#define CAN_FAIL(result, name, parameters, arguments, failure, ...) \
  result name parameters {                                          \
    static auto* const next = Next<result parameters>(#name);       \
    return Fails(__VA_ARGS__) ? failure : next arguments;           \
  }

extern "C" {

#if !SANITIZED
// For operator new and for what the C library allocates itself. dlsym cannot
// find the C library's own, since it allocates itself.
#define CAN_RUN_OUT(name, parameters, arguments)                 \
  void* __libc_##name parameters;                                \
  void* name parameters {                                        \
    return Fails(kAllocate) ? nullptr : __libc_##name arguments; \
  }
#pragma GCC visibility push(default)
CAN_RUN_OUT(malloc, (std::size_t size), (size))
CAN_RUN_OUT(calloc, (std::size_t count, std::size_t size), (count, size))
CAN_RUN_OUT(realloc, (void* memory, std::size_t size), (memory, size))
#pragma GCC visibility pop
#endif

int openat(int directory, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & O_CREAT) ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  static auto* next = Next<int(int, const char*, int, ...)>("openat");
  const bool creates = flags & (O_CREAT | O_TRUNC);
  const auto call = kOpen | (creates ? kCreate : 0U);
  return Fails(call) ? -1 : next(directory, path, flags, mode);
}
// The same under _FORTIFY_SOURCE, when the flags are not constant.
int __openat_2(int directory, const char* path, int flags) {
  return openat(directory, path, flags);
}

// For openat2, which the C library has no function for, and other calls with
// up to four arguments.
long syscall(long number, ...) {
  va_list arguments;
  va_start(arguments, number);
  long words[4];
  for (long& word : words) word = va_arg(arguments, long);
  va_end(arguments);
  static auto* next = Next<long(long, ...)>("syscall");
  if (number == SYS_openat2 && Fails(kOpen | kOpenat2)) return -1;
  return next(number, words[0], words[1], words[2], words[3]);
}

// What must fail halfway reads or writes half of its bytes.
#define CAN_BE_SHORT(call, name, parameters, ...)                           \
  ssize_t name parameters {                                                 \
    static auto* next = Next<ssize_t parameters>(#name);                    \
    const bool is_later = state.met;                                        \
    if (!Fails(call))                                                       \
      return next(file, bytes, size __VA_OPT__(, ) __VA_ARGS__);            \
    if (is_later || state.fault.effect < faults::Effect::kShort) return -1; \
    const ssize_t count =                                                   \
        next(file, bytes, (size + 1) / 2 __VA_OPT__(, ) __VA_ARGS__);       \
    if (state.fault.effect == faults::Effect::kKillHalfway)                 \
      _exit(faults::kKilled);                                               \
    return count;                                                           \
  }

CAN_BE_SHORT(kRead, read, (int file, void* bytes, std::size_t size))
CAN_BE_SHORT(kRead, pread,
             (int file, void* bytes, std::size_t size, off_t offset), offset)
CAN_BE_SHORT(kWrite, write, (int file, const void* bytes, std::size_t size))

// On Linux the descriptor is closed even when the call fails.
CAN_FAIL(int, close, (int file), (file), (next(file), -1), kClose)
CAN_FAIL(int, unlinkat, (int directory, const char* name, int flags),
         (directory, name, flags), -1,
         (flags & AT_REMOVEDIR) ? kRmdir : kUnlink, directory, name)
CAN_FAIL(int, mkdirat, (int directory, const char* path, mode_t mode),
         (directory, path, mode), -1, kMkdir)
CAN_FAIL(DIR*, fdopendir, (int directory), (directory), nullptr, kOpendir)
CAN_FAIL(dirent*, readdir, (DIR * directory), (directory), nullptr, kReaddir)
CAN_FAIL(ssize_t, getdents64, (int directory, void* buffer, std::size_t size),
         (directory, buffer, size), -1, kReaddir)
CAN_FAIL(int, stat, (const char* path, struct stat* info), (path, info), -1,
         kStat)
CAN_FAIL(int, fstat, (int file, struct stat* info), (file, info), -1, kStat)
CAN_FAIL(int, fstatat,
         (int directory, const char* path, struct stat* info, int flags),
         (directory, path, info, flags), -1, kStat)
CAN_FAIL(int, usleep, (useconds_t microseconds), (microseconds), -1, kWait)

passwd* getpwuid(uid_t uid) {
  static auto* const next = Next<passwd*(uid_t)>("getpwuid");
  static passwd user = {};
  if (!home_in_password_database) return next(uid);
  user.pw_dir = const_cast<char*>(home_in_password_database);
  return *home_in_password_database ? &user : nullptr;
}

}  // extern "C"
