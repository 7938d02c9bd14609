#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "store/draw_record.h"

namespace scan {

// How often a line of numbers would have won, draw by draw.
class LineMatches {
 public:
  static constexpr int kNumbers = 6;

  // The six numbers of the line; 0 is an empty place.
  explicit LineMatches(const std::array<std::uint8_t, kNumbers>& numbers);

  // Compares a draw (B1..B6, BB). A field of 0 keeps the value that an earlier draw had there.
  void Compare(const std::array<std::uint8_t, store::kBalls>& balls);

  // Draws with exactly this many hits, 1 to 6; those of them that hit with the bonus ball; the
  // rest.
  int All(int hits) const { return all_.at(static_cast<std::size_t>(hits)); }
  int WithBonus(int hits) const { return with_bonus_.at(static_cast<std::size_t>(hits)); }
  int Main(int hits) const;

  // The table of all this as the desk writes it.
  std::string Report() const;

 private:
  // The line with the place of the seventh number, which no draw is compared with.
  std::array<std::uint8_t, store::kBalls> line_{};
  std::array<std::uint8_t, store::kBalls> draw_{};
  std::array<int, kNumbers + 1> all_{};
  std::array<int, kNumbers + 1> with_bonus_{};
};

}  // namespace scan
