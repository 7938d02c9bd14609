#include "support/killed_process.h"

#include <signal.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <exception>
#include <system_error>

namespace test {
namespace {

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;
constexpr int kExitNotAllowed = 2;
constexpr int kSystemCallStop = SIGTRAP | 0x80;

// The copy leaves without destructors and checks at exit: these are the original's.
[[noreturn]] void Work(const std::function<bool()>& work) {
  int code = kExitFailed;
  try {
    if (work()) code = kExitDone;
  } catch (const std::exception&) {
    // Told by the code.
  }
  _exit(code);
}

[[noreturn]] void WorkWatched(const std::function<void()>& prepare,
                              const std::function<bool()>& work) {
  Work([&] {
    prepare();
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(kExitNotAllowed);
    raise(SIGSTOP);
    return work();
  });
}

pid_t Forked() {
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  return child;
}

int StatusOf(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  return status;
}

Ending EndingOf(int status, int deadly_signal) {
  if (WIFSIGNALED(status)) {
    return WTERMSIG(status) == deadly_signal ? Ending::kKilled : Ending::kFailed;
  }
  switch (WEXITSTATUS(status)) {
    case kExitDone:
      return Ending::kDone;
    case kExitNotAllowed:
      return Ending::kNotAllowed;
    default:
      return Ending::kFailed;
  }
}

Ending Kill(pid_t child) {
  kill(child, SIGKILL);
  return EndingOf(StatusOf(child), SIGKILL);
}

// Lets the child run to its next stop. A signal that is no stop of ours is delivered to it.
int StepToNextStop(pid_t child) {
  long signal = 0;
  while (true) {
    if (ptrace(PTRACE_SYSCALL, child, nullptr, signal) != 0) kill(child, SIGKILL);
    const int status = StatusOf(child);
    if (!WIFSTOPPED(status) || WSTOPSIG(status) == kSystemCallStop) return status;
    signal = WSTOPSIG(status);
  }
}

}  // namespace

Ending KillAtMoment(int moment, const std::function<void()>& prepare,
                    const std::function<bool()>& work) {
  const pid_t child = Forked();
  if (child == 0) WorkWatched(prepare, work);
  int status = StatusOf(child);
  if (!WIFSTOPPED(status)) return EndingOf(status, 0);
  if (ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL) != 0) {
    Kill(child);
    return Ending::kNotAllowed;
  }
  for (int passed = 0; passed < moment; ++passed) {
    status = StepToNextStop(child);
    if (!WIFSTOPPED(status)) return EndingOf(status, 0);
  }
  return Kill(child);
}

Ending KillBeyondFileSize(std::int64_t size, const std::function<bool()>& work) {
  const pid_t child = Forked();
  if (child == 0) {
    const rlimit no_core{0, 0};
    const rlimit end{static_cast<rlim_t>(size), static_cast<rlim_t>(size)};
    setrlimit(RLIMIT_CORE, &no_core);
    setrlimit(RLIMIT_FSIZE, &end);
    Work(work);
  }
  return EndingOf(StatusOf(child), SIGXFSZ);
}

}  // namespace test
