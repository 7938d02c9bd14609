#pragma once

#include <bit>
#include <cstdint>
#include <vector>

#include "tools/wheels/design.h"

// Lines and subsets as bits, as searches handle them: place p is the bit p - 1.

namespace wheels::tool {

using Mask = std::uint32_t;
using Masks = std::vector<Mask>;

inline int Size(Mask mask) { return std::popcount(mask); }
inline Mask LowestPlace(Mask mask) { return mask & (~mask + 1); }

Mask ToMask(const Places& places);
Places ToPlaces(Mask mask);
Masks ToMasks(const Design& design);
Design ToDesign(const Shape& shape, const Masks& lines);  // in order

// All subsets of `size` of the places of `mask`, in order of their bits; all subsets of a pool.
Masks SubsetsOf(Mask mask, int size);
Masks SubsetsOfPool(int pool, int size);

// Numbers the subsets of one size of a pool, from 0, by table.
class SubsetNumbers {
 public:
  SubsetNumbers(int pool, int size);
  // Of a subset of that size.
  std::size_t operator()(Mask subset) const { return numbers_[subset]; }
  const Masks& Subsets() const { return subsets_; }

 private:
  Masks subsets_;
  std::vector<std::uint32_t> numbers_;  // by mask
};

}  // namespace wheels::tool
