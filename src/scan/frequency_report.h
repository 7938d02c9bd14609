#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace scan {

// The first line of the frequency report and the empty line below it.
std::string FrequencyHeading(std::string_view from_date, std::string_view to_date);

// One line of the frequency report. `count` is above 0. The average draws/count is cut to its first
// three characters. Balls below 10 have a wording of their own.
std::string FrequencyLine(int ball, std::int16_t count, std::int16_t draws);

}  // namespace scan
