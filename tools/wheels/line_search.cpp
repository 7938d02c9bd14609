#include "tools/wheels/line_search.h"

#include <algorithm>
#include <array>

namespace wheels::tool {
namespace {

constexpr int kLongestRest = 8;

std::vector<std::vector<int>> Patterns(int size, int of) {
  std::vector<std::vector<int>> patterns;
  for (const Mask pattern : SubsetsOfPool(of, size)) {
    std::vector<int> indices;
    for (const int place : ToPlaces(pattern)) indices.push_back(place - 1);
    patterns.push_back(indices);
  }
  return patterns;
}

}  // namespace

LineSearch::LineSearch(const Shape& shape, Chance& chance)
    : shape_(shape),
      chance_(chance),
      numbers_(shape.pool, shape.match),
      patterns_(Patterns(shape.match - 1, shape.pick - 1)) {}

std::optional<Masks> LineSearch::Run(const Masks& lines, long steps, Budget& budget) {
  TakeUp(lines);
  for (long step = 0; !uncovered_.empty(); ++step) {
    if (step == steps || lines_.empty() || !budget.Spend()) return {};
    Step(step);
  }
  return lines_;
}

void LineSearch::TakeUp(const Masks& lines) {
  const std::size_t subsets = numbers_.Subsets().size();
  lines_ = lines;
  rests_until_.assign(lines.size(), 0);
  times_covered_.assign(subsets, 0);
  position_.assign(subsets, 0);
  uncovered_.clear();
  for (std::size_t subset = 0; subset < subsets; ++subset) {
    position_[subset] = uncovered_.size();
    uncovered_.push_back(subset);
  }
  for (const Mask line : lines_) Add(line);
}

void LineSearch::CoverOnceMore(std::size_t subset) {
  if (times_covered_[subset]++ > 0) return;
  const std::size_t last = uncovered_.back();
  uncovered_[position_[subset]] = last;
  position_[last] = position_[subset];
  uncovered_.pop_back();
}

void LineSearch::CoverOnceLess(std::size_t subset) {
  if (--times_covered_[subset] > 0) return;
  position_[subset] = uncovered_.size();
  uncovered_.push_back(subset);
}

void LineSearch::Add(Mask line) {
  for (const Mask subset : SubsetsOf(line, shape_.match)) CoverOnceMore(numbers_(subset));
}

void LineSearch::Remove(Mask line) {
  for (const Mask subset : SubsetsOf(line, shape_.match)) CoverOnceLess(numbers_(subset));
}

int LineSearch::SubsetsWith(Mask place, Mask others, int times) const {
  std::array<Mask, kLargestPool> bits{};
  for (std::size_t i = 0; others != 0; others &= others - 1) bits[i++] = LowestPlace(others);
  int count = 0;
  for (const std::vector<int>& pattern : patterns_) {
    Mask subset = place;
    for (const int index : pattern) subset |= bits[static_cast<std::size_t>(index)];
    if (times_covered_[numbers_(subset)] == times) ++count;
  }
  return count;
}

std::optional<LineSearch::Exchange> LineSearch::BestExchange(Mask uncovered) {
  std::optional<Exchange> best;
  std::size_t equals = 0;
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    const Mask places = lines_[line];
    if (rests_until_[line] > step_ || Size(places & uncovered) != shape_.match - 1) continue;
    const Mask in = uncovered & ~places;
    for (Mask rest = places & ~uncovered; rest != 0; rest &= rest - 1) {
      const Mask out = LowestPlace(rest);
      const Mask others = places & ~out;
      const int uncovers = SubsetsWith(out, others, 1) - SubsetsWith(in, others, 0);
      if (!best || uncovers < best->uncovers) equals = 0;
      if (best && uncovers > best->uncovers) continue;
      // Each of several best ones with the same chance.
      if (chance_.Below(++equals) == 0) best = Exchange{line, out, in, uncovers};
    }
  }
  return best;
}

void LineSearch::Replace(std::size_t line, Mask by) {
  Remove(lines_[line]);
  lines_[line] = by;
  Add(by);
  const int longest = std::min(kLongestRest, static_cast<int>(lines_.size()) / 2);
  rests_until_[line] = step_ + 1 + (longest > 0 ? chance_.Between(0, longest) : 0);
}

void LineSearch::Step(long step) {
  step_ = step;
  const Mask uncovered = numbers_.Subsets()[uncovered_[chance_.Below(uncovered_.size())]];
  if (const std::optional<Exchange> best = BestExchange(uncovered)) {
    Replace(best->line, (lines_[best->line] & ~best->out) | best->in);
    return;
  }
  // No line is near: one of them is drawn anew, round the subset.
  Mask line = uncovered;
  while (Size(line) < shape_.pick) line |= Mask{1} << chance_.Between(0, shape_.pool - 1);
  Replace(chance_.Below(lines_.size()), line);
}

}  // namespace wheels::tool
