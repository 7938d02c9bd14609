#include "support/small_disk.h"

#include <cerrno>
#include <system_error>

namespace test {

SmallDisk::SmallDisk(std::int64_t size) {
  struct sigaction ignored {};
  ignored.sa_handler = SIG_IGN;  // the write is to fail, not to kill
  sigaction(SIGXFSZ, &ignored, &old_action_);
  getrlimit(RLIMIT_FSIZE, &old_limit_);
  const rlimit limit{static_cast<rlim_t>(size), old_limit_.rlim_max};
  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
    throw std::system_error(errno, std::generic_category(), "limiting the size of files");
  }
}

SmallDisk::~SmallDisk() {
  setrlimit(RLIMIT_FSIZE, &old_limit_);
  sigaction(SIGXFSZ, &old_action_, nullptr);
}

}  // namespace test
