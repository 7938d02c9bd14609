#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/group.h"
#include "base/controls/simple_controls.h"

// Which numbers go into the boxes of a wheel: the temperature table and the ten sets of numbers
// that are taken from it.

namespace wheels {

// The entries of the list of sets; the number before the colon selects one.
inline constexpr std::array<const char*, 10> kNumberSets{
    "1: Use numbers : Hot 100%",
    "2: Use numbers : Warm 100%",
    "3: Use numbers : Cold 100%",
    "4: Use combination of numbers : Warm 75% & Hot 25% mixed",
    "5: Use combination of numbers : Warm 50% & Hot 50% mixed",
    "6: Use combination of numbers : Warm 25% & Hot 75% mixed",
    "7: Use combination of numbers : Cold(H) & Warm(H) & Hot(H):33.3% mixed",
    "8: Use combination of numbers : My own numbers",
    "9: Use numbers : 1 to textbox count",
    "10: Use numbers : Blank",
};

enum NumberSet : int {
  kHot = 1,
  kWarm = 2,
  kCold = 3,
  kWarmWarmHot = 4,
  kWarmHot = 5,
  kWarmHotHot = 6,
  kColdWarmHot = 7,
  kOwnNumbers = 8,
  kCounted = 9,
  kBlank = 10,
};

// The set that an entry selects; nothing for any other text.
std::optional<int> SetOfEntry(std::string_view entry);

// "OOO BB": occurrences in three digits and the number in two, so that the order of texts is that
// of occurrences. Number 1 to 99.
std::string TemperatureEntry(float occurrences, int number);
// The entries of all numbers that came up: the bars 1 to the last with their counts.
std::vector<std::string> TemperatureEntries(const base::Group<base::Bar>& bars);
// The number in such an entry, two characters.
std::string NumberOfEntry(std::string_view entry);

// The table from cold to hot, cut into thirds by place alone.
struct Temperatures {
  struct Row {
    std::string occurrences;
    std::string number;
    const char* band = "";  // "Cold", "Warm", "Hot"
  };
  std::vector<Row> rows;
  int cold_count = 0;
  int warm_top = 0;
};
// From entries in sorted order. A third is rounded half to even; what it leaves over is hot.
Temperatures CutIntoThirds(const std::vector<std::string>& entries);

// Which item of the table, counted from 1, set 1 to 7 puts into a box, counted from 1, when the
// table has `count` items and a third of `third`. It may name an item that the table does not have.
int ItemForBox(int set, int box, int count, int third);

// True for the sets that fill all twenty boxes, those out of sight included.
bool FillsAllBoxes(int set);

// The colour of a band on the number boxes.
base::Colour BandColour(std::string_view band);

}  // namespace wheels
