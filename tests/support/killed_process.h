#pragma once

#include <cstdint>
#include <functional>

namespace test {

// How a piece of work ended that ran in a process of its own, a copy of this one.
enum class Ending {
  kKilled,  // where it was to be
  kDone,    // it came to its end before, and returned true
  kFailed,  // it returned false, threw, or died of something else
};

// Runs `prepare` and then `work` in a copy of this process, which kills itself with SIGKILL at one
// moment of `work`. Every file call of it counts two: an even moment is right before a call has
// done anything (0 is the first), the odd one behind it right after.
Ending KillAtMoment(int moment, const std::function<void()>& prepare,
                    const std::function<bool()>& work);

// Runs `work` in a copy of this process that dies as soon as it writes beyond this offset of
// any file. What of the write fits below the offset is on the disk then.
Ending KillBeyondFileSize(std::int64_t size, const std::function<bool()>& work);

}  // namespace test
