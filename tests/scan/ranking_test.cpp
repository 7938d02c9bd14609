#include "scan/ranking.h"

#include <gtest/gtest.h>

namespace scan {
namespace {

TEST(CountText, HasThreeDigitsBelowAThousand) {
  EXPECT_EQ(CountText(0), "000");
  EXPECT_EQ(CountText(9), "009");
  EXPECT_EQ(CountText(10), "010");
  EXPECT_EQ(CountText(99), "099");
  EXPECT_EQ(CountText(100), "100");
  EXPECT_EQ(CountText(1234), "1234");
}

TEST(RankingRow, LeavesTheBallUnpadded) {
  EXPECT_EQ(RankingRow(45, 7), "045 7");
  EXPECT_EQ(RankingRow(45, 12), "045 12");
  EXPECT_EQ(RankingRow(123, 7), "123 7");
}

TEST(RankingRow, MisreadsACountOfFourDigits) {
  EXPECT_EQ(CountOfRow(RankingRow(1234, 7)), 123);
  EXPECT_EQ(BallOfRow(RankingRow(1234, 17)), 1);
}

TEST(MostCommonText, BeforeAScanHoldsZeros) {
  EXPECT_EQ(MostCommonText({"000 1"}),
            "The seven most common to date are  = 0 0 0 0 0 0 0\r\n"
            "The seven least common to date are  = 0 00 00 00 00 00 00\r\n\r\n");
}

TEST(MostCommonText, TakesTheMostCommonFromTheEnd) {
  const std::vector<std::string> rows{"001 9", "002 1", "003 22", "004 3",
                                      "005 4", "006 5", "007 6",  "045 12"};
  EXPECT_EQ(MostCommonText(rows),
            "The seven most common to date are  = 12 06 05 04 03 22 01\r\n"
            "The seven least common to date are  = 09 01 22 03 04 05 06\r\n\r\n");
}

TEST(MostCommonText, ShowsAMissingRowAsNoBall) {
  EXPECT_EQ(MostCommonText({"003 2", "004 1"}),
            "The seven most common to date are  = 01 02 0 0 0 0 0\r\n"
            "The seven least common to date are  = 02 01 00 00 00 00 00\r\n\r\n");
}

TEST(MostCommonText, RanksABallThatNeverCameUpAsLeastCommon) {
  EXPECT_EQ(MostCommonText({"000 1", "004 2"}),
            "The seven most common to date are  = 02 0 0 0 0 0 0\r\n"
            "The seven least common to date are  = 01 02 00 00 00 00 00\r\n\r\n");
}

}  // namespace
}  // namespace scan
