#include "wheels/number_sets.h"

#include "base/language/numbers.h"
#include "base/language/text.h"
#include "wheels/wheel_state.h"

namespace wheels {
namespace {

constexpr int kFirstMixedSet = kWarmWarmHot;

// One step of a mixed set: an item counted from the warm band's first, down from the last but the
// hottest, or from the coldest.
struct Step {
  enum From { kWarmUp, kHotDown, kColdUp } from;
  int n;
};
constexpr Step W(int n) { return {Step::kWarmUp, n}; }
constexpr Step C(int n) { return {Step::kHotDown, n}; }
constexpr Step A(int n) { return {Step::kColdUp, n}; }

// Box by box. The hot run begins one below the hottest number, and from box 10 on the last pattern
// runs warm, cold, hot.
constexpr std::array<std::array<Step, kNumberBoxes>, 4> kPatterns{{
    {W(1), W(2), C(1), W(3),  W(4), C(2),  W(5),  W(6), C(3),  W(7),
     W(8), C(4), W(9), W(10), C(5), W(11), W(12), C(6), W(13), W(14)},
    {W(1), C(1), W(2), C(2), W(3), C(3), W(4), C(4), W(5),  C(5),
     W(6), C(6), W(7), C(7), W(8), C(8), W(9), C(9), W(10), C(10)},
    {W(1), C(1), C(2), W(2), C(3),  C(4), W(3),  C(5),  C(6), W(4),
     C(7), C(8), W(5), C(9), C(10), W(6), C(11), C(12), W(7), C(13)},
    {W(1), C(1), A(1), W(2), C(2), A(2), W(3), C(3), A(3), W(4),
     A(4), C(4), W(5), A(5), C(5), W(6), A(6), C(6), W(7), A(7)},
}};

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return text;
}

}  // namespace

std::optional<int> SetOfEntry(std::string_view entry) {
  const std::string start = base::Left(entry, 2);
  for (int set = kHot; set <= kCounted; ++set) {
    if (start == base::IntegerText(set) + ":") return set;
  }
  if (start == "10") return kBlank;
  return std::nullopt;
}

std::string TemperatureEntry(float occurrences, int number) {
  return Padded(base::SingleText(occurrences), 3) + " " + Padded(base::IntegerText(number), 2);
}

std::vector<std::string> TemperatureEntries(const base::Group<base::Bar>& bars) {
  std::vector<std::string> entries;
  for (int number = 1; number <= bars.Last(); ++number) {
    const float occurrences = bars(number).Value();
    if (occurrences > 0) entries.push_back(TemperatureEntry(occurrences, number));
  }
  return entries;
}

std::string NumberOfEntry(std::string_view entry) { return base::Mid(entry, 5, 2); }

Temperatures CutIntoThirds(const std::vector<std::string>& entries) {
  Temperatures table;
  table.cold_count = base::ToInt16(static_cast<double>(entries.size()) / 3);
  table.warm_top = 2 * table.cold_count;
  int place = 0;
  for (const std::string& entry : entries) {
    const char* const band = place < table.cold_count ? "Cold"
                             : place < table.warm_top ? "Warm"
                                                      : "Hot";
    const std::string number = base::Mid(entry, 5, 3);
    table.rows.push_back({base::Left(entry, 3), std::string(base::Trim(number)), band});
    ++place;
  }
  return table;
}

int ItemForBox(int set, int box, int count, int third) {
  switch (set) {
    case kHot:
      return count - (box - 1);
    case kWarm:
      return third + box;
    case kCold:
      return box;
    default:
      break;
  }
  const Step step = kPatterns.at(static_cast<std::size_t>(set - kFirstMixedSet))
                        .at(static_cast<std::size_t>(box - 1));
  switch (step.from) {
    case Step::kWarmUp:
      return third + step.n;
    case Step::kHotDown:
      return count - step.n;
    case Step::kColdUp:
      break;
  }
  return step.n;
}

bool FillsAllBoxes(int set) {
  return (set >= kFirstMixedSet && set <= kColdWarmHot) || set == kCounted || set == kBlank;
}

base::Colour BandColour(std::string_view band) {
  if (band == "Cold") return 0xFFC0C0;
  if (band == "Warm") return 0x00FF00;
  return 0x0000FF;
}

}  // namespace wheels
