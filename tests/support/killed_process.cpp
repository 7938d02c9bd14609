#include "support/killed_process.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <exception>
#include <system_error>

#include "support/system_calls.h"

namespace test {
namespace {

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;

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

pid_t Forked() {
  const pid_t child = fork();
  if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
  return child;
}

Ending EndingOf(pid_t child, int deadly_signal) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  if (WIFSIGNALED(status)) {
    return WTERMSIG(status) == deadly_signal ? Ending::kKilled : Ending::kFailed;
  }
  return WEXITSTATUS(status) == kExitDone ? Ending::kDone : Ending::kFailed;
}

}  // namespace

Ending KillAtMoment(int moment, const std::function<void()>& prepare,
                    const std::function<bool()>& work) {
  const pid_t child = Forked();
  if (child == 0) {
    Work([&] {
      prepare();
      SystemCalls calls;
      const int call = moment / 2 + 1;
      moment % 2 == 0 ? calls.KillBefore(call) : calls.KillAfter(call);
      return work();
    });
  }
  return EndingOf(child, SIGKILL);
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
  return EndingOf(child, SIGXFSZ);
}

}  // namespace test
