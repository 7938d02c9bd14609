#include "tools/wheels/masks.h"

namespace wheels::tool {

Mask ToMask(const Places& places) {
  Mask mask = 0;
  for (const int place : places) mask |= Mask{1} << (place - 1);
  return mask;
}

Places ToPlaces(Mask mask) {
  Places places;
  for (; mask != 0; mask &= mask - 1) places.push_back(std::countr_zero(mask) + 1);
  return places;
}

Masks ToMasks(const Design& design) {
  Masks masks;
  for (const Places& line : design.lines) masks.push_back(ToMask(line));
  return masks;
}

Design ToDesign(const Shape& shape, const Masks& lines) {
  Design design{shape, {}};
  for (const Mask line : lines) design.lines.push_back(ToPlaces(line));
  Sort(design);
  return design;
}

Masks SubsetsOfPool(int pool, int size) {
  if (size == 0) return {0};
  Masks subsets;
  const Mask end = Mask{1} << pool;
  for (Mask subset = (Mask{1} << size) - 1; subset < end;) {
    subsets.push_back(subset);
    // The next greater number of as many bits.
    const Mask lowest = LowestPlace(subset);
    const Mask carried = subset + lowest;
    subset = carried | (((subset ^ carried) / lowest) >> 2);
  }
  return subsets;
}

Masks SubsetsOf(Mask mask, int size) {
  const Places places = ToPlaces(mask);
  Masks subsets;
  for (const Mask chosen : SubsetsOfPool(static_cast<int>(places.size()), size)) {
    Mask subset = 0;
    for (Mask rest = chosen; rest != 0; rest &= rest - 1) {
      subset |= Mask{1} << (places[static_cast<std::size_t>(std::countr_zero(rest))] - 1);
    }
    subsets.push_back(subset);
  }
  return subsets;
}

SubsetNumbers::SubsetNumbers(int pool, int size)
    : subsets_(SubsetsOfPool(pool, size)), numbers_(std::size_t{1} << pool) {
  std::uint32_t number = 0;
  for (const Mask subset : subsets_) numbers_[subset] = number++;
}

}  // namespace wheels::tool
