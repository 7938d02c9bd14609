#pragma once

#include <string>
#include <vector>

#include "tools/wheels/chance.h"

namespace wheels::tool {

// Where each place goes; places count from 0 here.
using Permutation = std::vector<int>;

// A small group that moves the places of a pool, by its generators. Wheels that it leaves as they
// are consist of whole orbits of lines, so there is far less to choose from.
struct Symmetry {
  std::string name;  // "cycles 6+6+3+3+1"
  std::vector<Permutation> generators;
};

// All places stay.
Symmetry NoSymmetry();

// One of many: cycles whose lengths divide one of them, turns with multipliers, grids, all or the
// even permutations of a few symbols on the symbols and their pairs. What does not fit stays.
Symmetry DrawSymmetry(int pool, Chance& chance);

}  // namespace wheels::tool
