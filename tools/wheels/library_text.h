#pragma once

#include <string>
#include <vector>

#include "tools/wheels/design.h"

// The delivered library, made from designs.

namespace wheels::tool {

// "[3 of 6] 10 numbers, 10 lines". The reader takes the pool from the two characters behind "] ".
std::string WheelName(const Design& design);

// The whole file, the wheels in order of match, pick and pool. The designs must have no flaws.
std::string LibraryText(std::vector<Design> designs);

}  // namespace wheels::tool
