#include "tools/wheels/orbits.h"

#include <algorithm>
#include <limits>

namespace wheels::tool {
namespace {

constexpr long kLargestTable = 8'000'000;
constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

Mask Moved(Mask mask, const Permutation& permutation) {
  Mask moved = 0;
  for (; mask != 0; mask &= mask - 1) {
    moved |= Mask{1} << permutation[static_cast<std::size_t>(std::countr_zero(mask))];
  }
  return moved;
}

// The orbits of all subsets of a size; tells of each subset, by its number, to which it belongs.
std::vector<Masks> OrbitsOf(const SubsetNumbers& numbers, const Symmetry& symmetry,
                            std::vector<std::uint32_t>& orbit_of) {
  std::vector<Masks> orbits;
  orbit_of.assign(numbers.Subsets().size(), kNone);
  for (const Mask first : numbers.Subsets()) {
    if (orbit_of[numbers(first)] != kNone) continue;
    const auto number = static_cast<std::uint32_t>(orbits.size());
    Masks orbit{first};
    orbit_of[numbers(first)] = number;
    for (std::size_t i = 0; i < orbit.size(); ++i) {
      for (const Permutation& generator : symmetry.generators) {
        const Mask moved = Moved(orbit[i], generator);
        if (orbit_of[numbers(moved)] != kNone) continue;
        orbit_of[numbers(moved)] = number;
        orbit.push_back(moved);
      }
    }
    orbits.push_back(std::move(orbit));
  }
  return orbits;
}

}  // namespace

OrbitTable MakeOrbits(const Shape& shape, const Symmetry& symmetry, std::size_t most_lines) {
  OrbitTable table;
  if (Choose(shape.pool, shape.pick) * Choose(shape.pick, shape.match) > kLargestTable) {
    return table;
  }
  const SubsetNumbers subsets(shape.pool, shape.match);
  std::vector<std::uint32_t> orbit_of;
  table.covered_by.resize(OrbitsOf(subsets, symmetry, orbit_of).size());
  std::vector<std::uint32_t> orbit_of_line;
  for (Masks& lines : OrbitsOf(SubsetNumbers(shape.pool, shape.pick), symmetry, orbit_of_line)) {
    if (lines.size() >= most_lines) continue;
    OrbitTable::Orbit orbit;
    // One line of the orbit holds a subset of each orbit that any of them holds one of.
    for (const Mask subset : SubsetsOf(lines.front(), shape.match)) {
      orbit.covers.push_back(orbit_of[subsets(subset)]);
    }
    std::sort(orbit.covers.begin(), orbit.covers.end());
    orbit.covers.erase(std::unique(orbit.covers.begin(), orbit.covers.end()), orbit.covers.end());
    for (const std::uint32_t covered : orbit.covers) {
      table.covered_by[covered].push_back(static_cast<std::uint32_t>(table.orbits.size()));
    }
    orbit.lines = std::move(lines);
    table.orbits.push_back(std::move(orbit));
  }
  return table;
}

}  // namespace wheels::tool
