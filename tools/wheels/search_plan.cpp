#include "tools/wheels/search_plan.h"

#include <algorithm>
#include <optional>

#include "tools/wheels/line_search.h"
#include "tools/wheels/orbit_cover.h"
#include "tools/wheels/orbits.h"
#include "tools/wheels/symmetry.h"

namespace wheels::tool {
namespace {

// One turn of each way.
constexpr long kExchanges = 4000;
constexpr long kOrbitSteps = 20000;
// One draw in this many uses no symmetry at all.
constexpr std::size_t kWithoutSymmetry = 12;
constexpr std::size_t kAnew = 4;

class Plan {
 public:
  Plan(const Shape& shape, const Masks& lines, Chance& chance, Budget& budget)
      : shape_(shape),
        chance_(chance),
        budget_(budget),
        exchanges_(shape, chance),
        best_{lines, "as given"},
        least_(static_cast<std::size_t>(LeastLines(shape.pool, shape.pick, shape.match))) {}

  Found Run() {
    while (!IsDone()) {
      TryExchanges();
      if (!IsDone()) TrySymmetry();
    }
    return best_;
  }

 private:
  bool IsDone() const { return best_.lines.size() <= least_ || !budget_.IsLeft(); }

  void TryExchanges() {
    bool go_on = true;
    while (go_on && !IsDone()) {
      go_on = TakeOver(exchanges_.Run(StartingLines(), kExchanges, budget_), "exchanges");
    }
  }

  // One line less than the best wheel has, most of them from it; now and then all anew.
  Masks StartingLines() {
    Masks lines = best_.lines;
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(chance_.Below(lines.size())));
    if (chance_.Below(kAnew) == 0) {
      for (Mask& line : lines) {
        line = 0;
        while (Size(line) < shape_.pick) line |= Mask{1} << chance_.Between(0, shape_.pool - 1);
      }
    }
    return lines;
  }

  void TrySymmetry() {
    const Symmetry symmetry =
        chance_.Below(kWithoutSymmetry) == 0 ? NoSymmetry() : DrawSymmetry(shape_.pool, chance_);
    const OrbitTable table = MakeOrbits(shape_, symmetry, best_.lines.size());
    OrbitCover cover(table, chance_);
    // Few orbits are soon tried in all ways.
    const long steps = std::min(kOrbitSteps, 20 * static_cast<long>(table.orbits.size()));
    while (!IsDone() && TakeOver(cover.Run(best_.lines.size(), steps, budget_), symmetry.name)) {
    }
    budget_.Spend();  // making the orbits, so that even trying nothing comes to an end
  }

  bool TakeOver(const std::optional<Masks>& lines, const std::string& way) {
    if (!lines || lines->size() >= best_.lines.size()) return false;
    best_ = {*lines, way};
    return true;
  }

  const Shape shape_;
  Chance& chance_;
  Budget& budget_;
  LineSearch exchanges_;
  Found best_;
  const std::size_t least_;
};

}  // namespace

Found LookForFewer(const Shape& shape, const Masks& lines, Chance& chance, Budget& budget) {
  return Plan(shape, lines, chance, budget).Run();
}

}  // namespace wheels::tool
