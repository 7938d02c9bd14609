#pragma once

#include "tools/wheels/chance.h"
#include "tools/wheels/masks.h"

namespace wheels::tool {

// A wheel of one place more: the lines of one wheel, and those of another with one pick and one
// match less, each with the new place.
Masks Extended(const Masks& without_place, const Masks& with_place, int new_place);

// A first wheel of the shape, built up from the smallest pools by extension. Each on the way is
// improved a little.
Masks FirstLines(const Shape& shape, Chance& chance, Budget& budget);

}  // namespace wheels::tool
