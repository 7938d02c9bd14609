#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace scan {

// A row of the due list: the average draws/count in five characters, a blank, the ball in two
// digits, for example "08.33 07". `count` is not 0. A figure of four digits comes out ten times too
// large ("12340"), since it is filled up from the right like the others.
std::string DueRow(std::int16_t draws, std::int32_t count, int ball);

// The sentence that the report makes of a due row.
std::string DueSentence(std::string_view row);

// The whole report text around the gathered sentences.
std::string DueReport(std::string_view from_date, std::string_view to_date,
                      std::string_view sentences);

}  // namespace scan
