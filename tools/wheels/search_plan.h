#pragma once

#include <string>

#include "tools/wheels/chance.h"
#include "tools/wheels/masks.h"

namespace wheels::tool {

struct Found {
  Masks lines;
  std::string way;  // by which they were found: "as given", "exchanges", the name of a symmetry
};

// Goes on from a wheel, exchanging places and trying symmetries by turns, until the budget is used
// up or there can be none smaller. Never returns more lines than it was given.
Found LookForFewer(const Shape& shape, const Masks& lines, Chance& chance, Budget& budget);

}  // namespace wheels::tool
