#pragma once

#include <compare>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "wheels/covering.h"

// A design is the bare lines of a wheel, one text file for each: a line of the file is a line of
// the wheel, its places separated by blanks. The name of the file tells the rest.

namespace wheels::tool {

// The most lines that the reader of the library can count.
constexpr int kMostLines = 255;
constexpr int kLargestPool = CoverProof::kLargestPool;

// In the order in which the library is delivered.
struct Shape {
  int match = 0;
  int pick = 0;
  int pool = 0;
  auto operator<=>(const Shape&) const = default;
};

// Whether the desk can offer wheels of this shape: 1 <= match < pick <= pool <= kLargestPool, and
// the count of subsets fits 16 bits.
bool IsPossible(const Shape& shape);

struct Design {
  Shape shape;
  std::vector<Places> lines;
};

// An input that cannot be used; says why.
class WrongInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A plain decimal number of at most six digits, without sign, blanks or leading zeros.
std::optional<int> ReadCount(std::string_view text);

// The numbers between blanks and commas; nothing when anything else stands there.
std::optional<Places> ReadPlaces(std::string_view text);

// "pick6-match3-pool10.txt" and back; throws WrongInput for a name of any other form.
std::string DesignFileName(const Shape& shape);
Shape ShapeOfFileName(const std::string& name);

// The design in a file of this name and text, in order. Throws WrongInput when a line is none.
Design ReadDesign(const std::string& name, std::string_view text);
std::string DesignText(const Design& design);

// Puts the places in each line and the lines themselves in order.
void Sort(Design& design);

// "3 8 11", as designs and the library write a line.
std::string PlacesText(const Places& places);

// What keeps the design from being a wheel of its shape, in words, line by line; at the end the
// first subset that no line holds. Empty when it is proved to be one.
std::vector<std::string> Flaws(const Design& design);

}  // namespace wheels::tool
