#pragma once

#include <optional>

#include "tools/wheels/chance.h"
#include "tools/wheels/masks.h"

namespace wheels::tool {

// Looks for a wheel of a given number of lines by exchanging single places: an uncovered subset is
// taken, and the line that covers it with the best exchange of one place is changed. A line that
// was changed rests for a few steps.
class LineSearch {
 public:
  LineSearch(const Shape& shape, Chance& chance);

  // Starts from the lines and changes them until they cover everything; nothing when the budget or
  // `steps` are used up before.
  std::optional<Masks> Run(const Masks& lines, long steps, Budget& budget);

 private:
  // Puts one place in the stead of another in a line.
  struct Exchange {
    std::size_t line = 0;
    Mask out = 0;
    Mask in = 0;
    int uncovers = 0;  // how many more subsets are uncovered after it
  };

  void TakeUp(const Masks& lines);
  void Add(Mask line);
  void Remove(Mask line);
  // Counts of a subset that reach or leave 0 change the list of the uncovered ones.
  void CoverOnceMore(std::size_t subset);
  void CoverOnceLess(std::size_t subset);

  // How many subsets of the line that hold the place are covered `times`.
  int SubsetsWith(Mask place, Mask others, int times) const;
  std::optional<Exchange> BestExchange(Mask uncovered);
  void Replace(std::size_t line, Mask by);
  void Step(long step);

  const Shape shape_;
  Chance& chance_;
  const SubsetNumbers numbers_;
  std::vector<std::vector<int>> patterns_;  // match - 1 of pick - 1 indices
  Masks lines_;
  std::vector<long> rests_until_;       // by line
  std::vector<int> times_covered_;      // by subset
  std::vector<std::size_t> uncovered_;  // subsets
  std::vector<std::size_t> position_;   // of a subset among the uncovered
  long step_ = 0;
};

}  // namespace wheels::tool
