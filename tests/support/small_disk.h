#pragma once

#include <signal.h>
#include <sys/resource.h>

#include <cstdint>

namespace test {

// While it lives, no file of this process grows beyond a size: what fits of a write is written, and
// the next one fails, as on a full disk. Writing to a terminal or a pipe goes on.
class SmallDisk {
 public:
  explicit SmallDisk(std::int64_t size);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  rlimit old_limit_{};
  struct sigaction old_action_ {};
};

}  // namespace test
