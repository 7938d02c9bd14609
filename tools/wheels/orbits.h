#pragma once

#include <cstdint>

#include "tools/wheels/masks.h"
#include "tools/wheels/symmetry.h"

namespace wheels::tool {

// Which orbits of lines cover which orbits of subsets.
struct OrbitTable {
  struct Orbit {
    Masks lines;
    std::vector<std::uint32_t> covers;  // orbits of subsets, each once
  };
  std::vector<Orbit> orbits;
  std::vector<std::vector<std::uint32_t>> covered_by;  // orbits of lines, by orbit of subsets
};

// Orbits of `most_lines` lines or more are left out. So are all when the table would be too large
// to be of use: it is empty then.
OrbitTable MakeOrbits(const Shape& shape, const Symmetry& symmetry, std::size_t most_lines);

}  // namespace wheels::tool
