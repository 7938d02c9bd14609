#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace sessions {

// All that is random in a run, out of its seed.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}

  // A number from `least` to `most`.
  int Between(int least, int most) {
    return std::uniform_int_distribution<int>(least, most)(engine_);
  }
  bool Percent(int percent) { return Between(1, 100) <= percent; }
  template <typename T>
  const T& OneOf(const std::vector<T>& choices) {
    return choices[static_cast<std::size_t>(Between(0, static_cast<int>(choices.size()) - 1))];
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace sessions
