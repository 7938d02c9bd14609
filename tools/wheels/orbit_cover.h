#pragma once

#include <optional>

#include "tools/wheels/chance.h"
#include "tools/wheels/orbits.h"

namespace wheels::tool {

// Looks for few lines in whole orbits that cover all orbits of subsets, by weights: a subset that
// stays uncovered weighs more from step to step, until it is worth while to cover it. An orbit that
// was put away may come back once something near it has changed.
class OrbitCover {
 public:
  OrbitCover(const OrbitTable& table, Chance& chance);

  // The lines of a cover of fewer than `limit` lines; nothing when the budget or `steps` are used
  // up before, or when there cannot be one.
  std::optional<Masks> Run(std::size_t limit, long steps, Budget& budget);

 private:
  using Index = std::uint32_t;

  bool CanCover() const;
  std::size_t LinesOf(Index orbit) const { return table_.orbits[orbit].lines.size(); }
  // Above 0 if orbit a is worth more for each of its lines than b, 0 if as much.
  long Compare(Index a, Index b) const;
  // Changes the orbit from chosen to not chosen or back, with everybody's worth.
  void Flip(Index orbit);
  void Cover(Index subset, Index orbit);
  void Uncover(Index subset, Index orbit);
  void PutAwayOne();
  // False when the best orbit that covers the subset would make too many lines.
  bool CoverOne(std::size_t limit);
  void RaiseWeights();
  Masks Lines() const;

  const OrbitTable& table_;
  Chance& chance_;
  std::vector<bool> is_chosen_;  // by orbit of lines
  std::vector<bool> may_come_back_;
  std::vector<long> worth_;  // weight that is covered by this orbit alone, or would be
  std::vector<long> changed_at_;
  std::vector<Index> chosen_;
  std::vector<int> times_covered_;  // by orbit of subsets
  std::vector<long> weight_;
  std::vector<Index> uncovered_;
  std::size_t lines_ = 0;  // of the chosen orbits
  Index just_chosen_ = 0;
  long step_ = 0;
};

}  // namespace wheels::tool
