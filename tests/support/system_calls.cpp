// The functions below bear the names that headers give to others where these are defined.
#undef _FORTIFY_SOURCE
#undef _FILE_OFFSET_BITS
#undef _TIME_BITS

#include "support/system_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <type_traits>
#include <utility>

namespace test {
namespace {

constinit thread_local SystemCalls* watching = nullptr;

// The function of this name that stands behind the one of this file. The checkers' own functions
// come before those of the C library, so that they still see every buffer.
template <typename Function>
Function Next(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

// What a call is about, not yet a text: most calls are never written down.
struct Place {
  int descriptor = AT_FDCWD;
  const char* path = nullptr;
  const char* to = nullptr;
  int flags = 0;
};

std::string OpenOn(int descriptor) {
  char path[PATH_MAX];
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  const ssize_t length = readlink(link.c_str(), path, sizeof path);
  return length < 0 ? std::string() : std::string(path, static_cast<std::size_t>(length));
}

std::string PathOf(const Place& place) {
  std::string path = place.path ? place.path : "";
  if (path.size() > 1 && path.back() == '/') path.pop_back();
  if (place.descriptor == AT_FDCWD || path.starts_with('/')) return path;
  return OpenOn(place.descriptor) + (path.empty() ? "" : "/") + path;
}

[[noreturn]] void Die() {
  kill(getpid(), SIGKILL);
  while (true) pause();
}

bool MovesBytes(const std::string& name) {
  return name == "read" || name == "write" || name == "pread" || name == "pwrite";
}

}  // namespace

std::string SystemCall::Text() const { return name + " " + path + (to.empty() ? "" : " ") + to; }

SystemCalls::SystemCalls() {
  if (watching) abort();
  watching = this;
}

SystemCalls::~SystemCalls() { watching = nullptr; }

void SystemCalls::Arm(Plan plan, int n, int error, std::string name) {
  plan_ = plan;
  left_ = n;
  error_ = error;
  name_ = std::move(name);
  has_struck_ = false;
  interrupted_.clear();
}

void SystemCalls::FailFromNow(int n, int error, std::string name) {
  Arm(Plan::kFail, n, error, std::move(name));
}

void SystemCalls::InterruptEachKind() { Arm(Plan::kInterruptEachKind, 0); }
void SystemCalls::ShortenFromNow(int n) { Arm(Plan::kShorten, n); }
void SystemCalls::KillBefore(int n) { Arm(Plan::kKillBefore, n); }
void SystemCalls::KillAfter(int n) { Arm(Plan::kKillAfter, n); }

void SystemCalls::ActBefore(int n, std::function<void()> act, std::string name) {
  Arm(Plan::kAct, n, 0, std::move(name));
  act_ = std::move(act);
}

std::vector<std::string> SystemCalls::Texts(const std::string& folder) const {
  std::vector<std::string> texts;
  for (SystemCall call : seen_) {
    for (std::string* path : {&call.path, &call.to}) {
      if (*path == folder) *path = ".";
      if (path->starts_with(folder + "/")) path->erase(0, folder.size() + 1);
    }
    texts.push_back(call.Text());
  }
  return texts;
}

bool SystemCalls::IsCounted(const std::string& name) const {
  if (plan_ == Plan::kShorten) return MovesBytes(name);
  return name_.empty() || name_ == name;
}

bool SystemCalls::IsNextToStrike(const std::string& name) const {
  return left_ == 1 && IsCounted(name);
}

int SystemCalls::ErrorOf(const SystemCall& call) {
  const auto lacking = lacking_.find(call.name);
  if (lacking != lacking_.end()) return lacking->second;
  if (plan_ == Plan::kFail && IsNextToStrike(call.name)) return error_;
  if (plan_ != Plan::kInterruptEachKind) return 0;
  if (std::find(interrupted_.begin(), interrupted_.end(), call.name) != interrupted_.end()) {
    return 0;
  }
  interrupted_.push_back(call.name);
  has_struck_ = true;
  return EINTR;
}

// What every call goes through.
struct SystemCallGate {
  template <typename Real>
  static auto Pass(const char* name, const Place& place, Real real) -> decltype(real()) {
    SystemCalls* const calls = watching;
    if (!calls) return real();
    const int old_errno = errno;
    watching = nullptr;  // what the watching itself does is not seen
    const SystemCall call{name, PathOf(place), place.to ? place.to : "", place.flags};
    calls->seen_.push_back(call);
    const bool strikes = calls->IsNextToStrike(call.name);
    if (strikes && calls->plan_ == SystemCalls::Plan::kKillBefore) Die();
    if (strikes && calls->plan_ == SystemCalls::Plan::kAct) calls->act_();
    errno = old_errno;
    const auto result = Made(calls->ErrorOf(call), real);
    if (strikes && calls->plan_ == SystemCalls::Plan::kKillAfter) Die();
    if (calls->left_ > 0 && calls->IsCounted(call.name)) --calls->left_;
    calls->has_struck_ |= strikes;
    watching = calls;
    return result;
  }

  // Reads and writes may be cut short.
  template <typename Real>
  static ssize_t Move(const char* name, int descriptor, std::size_t count, Real real) {
    const bool cut = watching && watching->plan_ == SystemCalls::Plan::kShorten &&
                     watching->IsNextToStrike(name);
    if (cut && count > 1) count /= 2;
    return Pass(name, {.descriptor = descriptor}, [&] { return real(count); });
  }

 private:
  template <typename Real>
  static auto Made(int error, Real real) -> decltype(real()) {
    if (error == 0) return real();
    errno = error;
    if constexpr (std::is_pointer_v<decltype(real())>) {
      return nullptr;
    } else {
      return -1;
    }
  }
};

}  // namespace test

using test::Next;
using Gate = test::SystemCallGate;

namespace {

bool TakesMode(int flags) { return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE; }

// The mode behind the flags, which is there only if they say so.
mode_t ModeOf(int flags, va_list arguments) {
  return TakesMode(flags) ? va_arg(arguments, mode_t) : 0;
}

using OpenFunction = int (*)(const char*, int, ...);
using OpenAtFunction = int (*)(int, const char*, int, ...);

int Open(OpenFunction next, const char* path, int flags, mode_t mode) {
  return Gate::Pass("open", {.path = path, .flags = flags},
                    [&] { return next(path, flags, mode); });
}

int OpenAt(OpenAtFunction next, int folder, const char* path, int flags, mode_t mode) {
  return Gate::Pass("openat", {.descriptor = folder, .path = path, .flags = flags},
                    [&] { return next(folder, path, flags, mode); });
}

template <typename Function, typename Status>
int StatOf(const char* name, Function next, const char* path, Status* status) {
  return Gate::Pass(name, {.path = path}, [&] { return next(path, status); });
}

template <typename Function, typename Status>
int StatOf(const char* name, Function next, int descriptor, Status* status) {
  return Gate::Pass(name, {.descriptor = descriptor}, [&] { return next(descriptor, status); });
}

template <typename Function, typename Status>
int StatAt(Function next, int folder, const char* path, Status* status, int flags) {
  return Gate::Pass("fstatat", {.descriptor = folder, .path = path, .flags = flags},
                    [&] { return next(folder, path, status, flags); });
}

template <typename Function, typename Offset>
ssize_t ReadAt(Function next, int descriptor, void* bytes, std::size_t count, Offset offset) {
  return Gate::Move("pread", descriptor, count,
                    [&](std::size_t n) { return next(descriptor, bytes, n, offset); });
}

template <typename Function, typename Offset>
ssize_t WriteAt(Function next, int descriptor, const void* bytes, std::size_t count,
                Offset offset) {
  return Gate::Move("pwrite", descriptor, count,
                    [&](std::size_t n) { return next(descriptor, bytes, n, offset); });
}

template <typename Function, typename Offset>
int Truncate(Function next, int descriptor, Offset length) {
  return Gate::Pass("ftruncate", {.descriptor = descriptor},
                    [&] { return next(descriptor, length); });
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
  static const auto next = Next<OpenFunction>("open");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(next, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  static const auto next = Next<OpenFunction>("open64");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return Open(next, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  static const auto next = Next<OpenAtFunction>("openat");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return OpenAt(next, folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
  static const auto next = Next<OpenAtFunction>("openat64");
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return OpenAt(next, folder, path, flags, mode);
}

// One that fails has closed all the same, as it is on Linux: trying again would close another's.
int close(int descriptor) {
  static const auto next = Next<int (*)(int)>("close");
  bool is_closed = false;
  const int result = Gate::Pass("close", {.descriptor = descriptor}, [&] {
    is_closed = true;
    return next(descriptor);
  });
  if (is_closed) return result;
  const int error = errno;
  next(descriptor);
  errno = error;
  return result;
}

ssize_t read(int descriptor, void* bytes, std::size_t count) {
  static const auto next = Next<ssize_t (*)(int, void*, std::size_t)>("read");
  return Gate::Move("read", descriptor, count,
                    [&](std::size_t n) { return next(descriptor, bytes, n); });
}

ssize_t write(int descriptor, const void* bytes, std::size_t count) {
  static const auto next = Next<ssize_t (*)(int, const void*, std::size_t)>("write");
  return Gate::Move("write", descriptor, count,
                    [&](std::size_t n) { return next(descriptor, bytes, n); });
}

ssize_t pread(int descriptor, void* bytes, std::size_t count, off_t offset) {
  static const auto next = Next<ssize_t (*)(int, void*, std::size_t, off_t)>("pread");
  return ReadAt(next, descriptor, bytes, count, offset);
}

ssize_t pread64(int descriptor, void* bytes, std::size_t count, off64_t offset) {
  static const auto next = Next<ssize_t (*)(int, void*, std::size_t, off64_t)>("pread64");
  return ReadAt(next, descriptor, bytes, count, offset);
}

ssize_t pwrite(int descriptor, const void* bytes, std::size_t count, off_t offset) {
  static const auto next = Next<ssize_t (*)(int, const void*, std::size_t, off_t)>("pwrite");
  return WriteAt(next, descriptor, bytes, count, offset);
}

ssize_t pwrite64(int descriptor, const void* bytes, std::size_t count, off64_t offset) {
  static const auto next = Next<ssize_t (*)(int, const void*, std::size_t, off64_t)>("pwrite64");
  return WriteAt(next, descriptor, bytes, count, offset);
}

int fsync(int descriptor) {
  static const auto next = Next<int (*)(int)>("fsync");
  return Gate::Pass("fsync", {.descriptor = descriptor}, [&] { return next(descriptor); });
}

int fdatasync(int descriptor) {
  static const auto next = Next<int (*)(int)>("fdatasync");
  return Gate::Pass("fdatasync", {.descriptor = descriptor}, [&] { return next(descriptor); });
}

int ftruncate(int descriptor, off_t length) noexcept {
  static const auto next = Next<int (*)(int, off_t)>("ftruncate");
  return Truncate(next, descriptor, length);
}

int ftruncate64(int descriptor, off64_t length) noexcept {
  static const auto next = Next<int (*)(int, off64_t)>("ftruncate64");
  return Truncate(next, descriptor, length);
}

int rename(const char* path, const char* to) noexcept {
  static const auto next = Next<int (*)(const char*, const char*)>("rename");
  return Gate::Pass("rename", {.path = path, .to = to}, [&] { return next(path, to); });
}

int renameat2(int folder, const char* path, int to_folder, const char* to,
              unsigned int flags) noexcept {
  static const auto next =
      Next<int (*)(int, const char*, int, const char*, unsigned int)>("renameat2");
  return Gate::Pass(
      "renameat2", {.descriptor = folder, .path = path, .to = to, .flags = static_cast<int>(flags)},
      [&] { return next(folder, path, to_folder, to, flags); });
}

int unlink(const char* path) noexcept {
  static const auto next = Next<int (*)(const char*)>("unlink");
  return Gate::Pass("unlink", {.path = path}, [&] { return next(path); });
}

int unlinkat(int folder, const char* path, int flags) noexcept {
  static const auto next = Next<int (*)(int, const char*, int)>("unlinkat");
  return Gate::Pass("unlinkat", {.descriptor = folder, .path = path, .flags = flags},
                    [&] { return next(folder, path, flags); });
}

int link(const char* path, const char* to) noexcept {
  static const auto next = Next<int (*)(const char*, const char*)>("link");
  return Gate::Pass("link", {.path = path, .to = to}, [&] { return next(path, to); });
}

int linkat(int folder, const char* path, int to_folder, const char* to, int flags) noexcept {
  static const auto next = Next<int (*)(int, const char*, int, const char*, int)>("linkat");
  return Gate::Pass("linkat", {.descriptor = folder, .path = path, .to = to, .flags = flags},
                    [&] { return next(folder, path, to_folder, to, flags); });
}

int flock(int descriptor, int operation) noexcept {
  static const auto next = Next<int (*)(int, int)>("flock");
  return Gate::Pass("flock", {.descriptor = descriptor, .flags = operation},
                    [&] { return next(descriptor, operation); });
}

int mkdir(const char* path, mode_t mode) noexcept {
  static const auto next = Next<int (*)(const char*, mode_t)>("mkdir");
  return Gate::Pass("mkdir", {.path = path}, [&] { return next(path, mode); });
}

int fchmod(int descriptor, mode_t mode) noexcept {
  static const auto next = Next<int (*)(int, mode_t)>("fchmod");
  return Gate::Pass("fchmod", {.descriptor = descriptor}, [&] { return next(descriptor, mode); });
}

int faccessat(int folder, const char* path, int mode, int flags) noexcept {
  static const auto next = Next<int (*)(int, const char*, int, int)>("faccessat");
  return Gate::Pass("faccessat", {.descriptor = folder, .path = path, .flags = flags},
                    [&] { return next(folder, path, mode, flags); });
}

ssize_t readlink(const char* path, char* text, std::size_t length) noexcept {
  static const auto next = Next<ssize_t (*)(const char*, char*, std::size_t)>("readlink");
  return Gate::Pass("readlink", {.path = path}, [&] { return next(path, text, length); });
}

int stat(const char* path, struct stat* status) noexcept {
  static const auto next = Next<int (*)(const char*, struct stat*)>("stat");
  return StatOf("stat", next, path, status);
}

int stat64(const char* path, struct stat64* status) noexcept {
  static const auto next = Next<int (*)(const char*, struct stat64*)>("stat64");
  return StatOf("stat", next, path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
  static const auto next = Next<int (*)(const char*, struct stat*)>("lstat");
  return StatOf("lstat", next, path, status);
}

int lstat64(const char* path, struct stat64* status) noexcept {
  static const auto next = Next<int (*)(const char*, struct stat64*)>("lstat64");
  return StatOf("lstat", next, path, status);
}

int fstat(int descriptor, struct stat* status) noexcept {
  static const auto next = Next<int (*)(int, struct stat*)>("fstat");
  return StatOf("fstat", next, descriptor, status);
}

int fstat64(int descriptor, struct stat64* status) noexcept {
  static const auto next = Next<int (*)(int, struct stat64*)>("fstat64");
  return StatOf("fstat", next, descriptor, status);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  static const auto next = Next<int (*)(int, const char*, struct stat*, int)>("fstatat");
  return StatAt(next, folder, path, status, flags);
}

int fstatat64(int folder, const char* path, struct stat64* status, int flags) noexcept {
  static const auto next = Next<int (*)(int, const char*, struct stat64*, int)>("fstatat64");
  return StatAt(next, folder, path, status, flags);
}

DIR* opendir(const char* path) {
  static const auto next = Next<DIR* (*)(const char*)>("opendir");
  return Gate::Pass("opendir", {.path = path}, [&] { return next(path); });
}

}  // extern "C"
