#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <random>

// What a search may use up: random numbers, steps, time.

namespace wheels::tool {

// The same numbers for the same seed on every machine.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : random_(seed) {}

  // One of 0..n - 1; n must be above 0.
  std::size_t Below(std::size_t n) { return static_cast<std::size_t>(random_() % n); }
  int Between(int low, int high) {
    return low + static_cast<int>(Below(static_cast<std::size_t>(high - low + 1)));
  }

 private:
  std::mt19937_64 random_;
};

// Steps are counted, so that a search of so many steps is repeatable; the time only ends it.
class Budget {
 public:
  using Clock = std::chrono::steady_clock;

  Budget(long steps, Clock::duration time) : steps_(steps), end_(Clock::now() + time) {}

  // Takes one step; false when steps or time are used up.
  bool Spend() {
    constexpr long kStepsBetweenLooks = 64;
    if (steps_ % kStepsBetweenLooks == 0 && Clock::now() >= end_) steps_ = 0;
    if (steps_ <= 0) return false;
    --steps_;
    return true;
  }
  bool IsLeft() const { return steps_ > 0 && Clock::now() < end_; }

 private:
  long steps_;
  Clock::time_point end_;
};

}  // namespace wheels::tool
