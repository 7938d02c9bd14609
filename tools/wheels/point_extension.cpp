#include "tools/wheels/point_extension.h"

#include <map>

#include "tools/wheels/line_search.h"

namespace wheels::tool {
namespace {

constexpr long kStepsForEach = 200;

class Builder {
 public:
  Builder(Chance& chance, Budget& budget) : chance_(chance), budget_(budget) {}

  const Masks& Lines(const Shape& shape) {
    const auto known = known_.find(shape);
    if (known != known_.end()) return known->second;
    return known_.emplace(shape, Improved(shape, Make(shape))).first->second;
  }

 private:
  Masks Make(const Shape& shape) {
    const auto& [match, pick, pool] = shape;
    if (pool <= pick) return {(Mask{1} << pool) - 1};
    if (match == 1) return Row(pick, pool);
    return Extended(Lines({match, pick, pool - 1}), Lines({match - 1, pick - 1, pool - 1}), pool);
  }

  // Lines side by side, the last one pushed back into the pool.
  static Masks Row(int pick, int pool) {
    Masks lines;
    const Mask line = (Mask{1} << pick) - 1;
    for (int start = 0; start < pool; start += pick) {
      lines.push_back(line << (start + pick > pool ? pool - pick : start));
    }
    return lines;
  }

  Masks Improved(const Shape& shape, Masks lines) {
    LineSearch search(shape, chance_);
    while (lines.size() > 1) {
      Masks fewer = lines;
      fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(chance_.Below(fewer.size())));
      const std::optional<Masks> found = search.Run(fewer, kStepsForEach, budget_);
      if (!found) break;
      lines = *found;
    }
    return lines;
  }

  Chance& chance_;
  Budget& budget_;
  std::map<Shape, Masks> known_;
};

}  // namespace

Masks Extended(const Masks& without_place, const Masks& with_place, int new_place) {
  Masks lines = without_place;
  for (const Mask line : with_place) lines.push_back(line | Mask{1} << (new_place - 1));
  return lines;
}

Masks FirstLines(const Shape& shape, Chance& chance, Budget& budget) {
  return Builder(chance, budget).Lines(shape);
}

}  // namespace wheels::tool
