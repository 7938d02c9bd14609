#pragma once

#include <string>
#include <vector>

namespace scan {

// Figures over the counts of the balls 1..n, where n is how many balls have come up at all.
struct DrawStatistics {
  double deviation = 0;  // root of the mean square with one degree taken off; no mean is subtracted
  double mean = 0;
  float total = 0;
  int range = 0;  // n
  double highest = 0;
  double lowest = 0;  // 100 if every count is above it
};

// `counts` holds the count of ball k at k - 1. Error 6 when nothing was counted, 11 when one ball
// was (6 again if it was not ball 1, which then divides 0 by 0).
DrawStatistics Statistics(const std::vector<float>& counts);

// The lines of the statistics box.
std::string StatisticsText(const DrawStatistics& statistics, double draw_number);

}  // namespace scan
