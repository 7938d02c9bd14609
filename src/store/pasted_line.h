#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/language/dates.h"
#include "store/draw_record.h"

namespace store {

// The three cleaners of text from outside, in the order in which they run. All turn the text to
// lower case, shorten runs of blanks and trim blanks at both ends.

// Removes the letters a to z.
std::string StripLetters(std::string_view text);
// Turns brackets, signs and field marks into blanks; "/" stays.
std::string StripSymbols(std::string_view text);
// Turns tabs into blanks and every kind of line end into a line break.
std::string StripControls(std::string_view text);

// A line of results taken apart. A ball that the line has no place for is absent.
struct PastedLine {
  std::string date_part;
  std::array<std::optional<std::string>, kBalls> balls;  // B1..B6, BB
};

// Takes a cleaned line apart: the first part longer than six characters that is a date tells where
// the balls stand, before it or behind it. Without a date the first part counts as one.
PastedLine TakeApart(std::string_view cleaned, base::DateOrder order);

}  // namespace store
