#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace scan {

// A count in three digits: "00" in front of counts up to 9, "0" in front of counts to 99. Larger
// counts stand as they are.
std::string CountText(float count);

// A ranking row: the count text, a blank, the ball unpadded, for example "045 7".
std::string RankingRow(float count, int ball);

// The ball of a ranking row (the two characters from column 5) as a number, 0 for none.
int BallOfRow(std::string_view row);

// The count of a ranking row, the number in its first three characters.
float CountOfRow(std::string_view row);

// The sentences on the seven most and seven least common balls, from ranking rows that are sorted
// from least to most common. Missing rows count as empty.
std::string MostCommonText(const std::vector<std::string>& sorted_rows);

}  // namespace scan
