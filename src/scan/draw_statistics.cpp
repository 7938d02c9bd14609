#include "scan/draw_statistics.h"

#include <algorithm>
#include <cmath>

#include "base/language/error.h"
#include "base/language/numbers.h"

namespace scan {
namespace {

constexpr double kLowestStart = 100;

// Each figure passes through text between two steps.
double ThroughText(double value) { return base::ToDouble(base::DoubleText(value)); }

std::string Rounded(double value, int decimals) {
  return base::DoubleText(base::RoundHalfEven(value, decimals));
}

}  // namespace

DrawStatistics Statistics(const std::vector<float>& counts) {
  DrawStatistics result;
  result.range = static_cast<int>(
      std::count_if(counts.begin(), counts.end(), [](float count) { return count > 0; }));
  if (result.range == 0) throw base::Error(base::kOverflow);
  // One ball leaves nothing to divide by; if a gap precedes it, there is nothing to divide either.
  if (result.range == 1) {
    throw base::Error(counts.front() > 0 ? base::kDivisionByZero : base::kOverflow);
  }

  double squares = 0;
  result.lowest = kLowestStart;
  for (int k = 0; k < result.range; ++k) {
    const float count = counts[static_cast<std::size_t>(k)];
    result.total += count;
    squares =
        ThroughText(squares + std::fabs(ThroughText(std::pow(base::RoundHalfEven(count, 2), 2))));
    result.highest = std::max<double>(result.highest, count);
    result.lowest = std::min<double>(result.lowest, count);
  }
  result.mean = static_cast<double>(result.total) / result.range;
  result.deviation = std::sqrt(squares / (result.range - 1));
  return result;
}

std::string StatisticsText(const DrawStatistics& statistics, double draw_number) {
  const double deviation = base::RoundHalfEven(statistics.deviation, 2);
  const double mean = base::RoundHalfEven(statistics.mean, 2);
  return "Statistics from lottery as of draw number " + base::DoubleText(draw_number) +
         "\r\n"
         "\r\n"
         "Standard Deviation " +
         base::DoubleText(deviation) +
         "\r\n"
         "Mean " +
         base::DoubleText(mean) +
         "\r\n"
         "Diffrence Of Standard Deviation and Mean " +
         Rounded(deviation - mean, 4) +
         "\r\n"
         "\r\n"
         "Total value of all draws " +
         base::SingleText(statistics.total) +
         "\r\n"
         "\r\n"
         "Range of numbers " +
         base::IntegerText(statistics.range) +
         "\r\n"
         "Highest from range " +
         base::DoubleText(statistics.highest) +
         "\r\n"
         "Lowest from range " +
         base::DoubleText(statistics.lowest) +
         "\r\n"
         "Diffrence Of range " +
         base::DoubleText(statistics.highest - statistics.lowest);
}

}  // namespace scan
