#include "store/pasted_line.h"

#include <gtest/gtest.h>

namespace store {
namespace {

using base::DateOrder;

std::string Clean(std::string_view text) { return StripControls(StripSymbols(StripLetters(text))); }

std::vector<std::string> Balls(const PastedLine& line) {
  std::vector<std::string> balls;
  for (const auto& ball : line.balls) balls.push_back(ball.value_or("-"));
  return balls;
}

TEST(StripLetters, RemovesEveryLetterOfTheKeyboard) {
  EXPECT_EQ(StripLetters("Sat 05/12/05 BONUS 7"), "05/12/05 7");
  EXPECT_EQ(StripLetters("qwertyuiopasdfghjklzxcvbnm"), "");
}

TEST(StripSymbols, TurnsMarksIntoBlanksButKeepsTheSolidus) {
  EXPECT_EQ(StripSymbols("[1]-{2},\xA3"
                         "3=4 05/12/05"),
            "1 2 3 4 05/12/05");
}

TEST(StripSymbols, KnowsTheFieldMarks) {
  EXPECT_EQ(StripSymbols("1\x03 \x02"
                         "2\x02"
                         "3\x03"
                         "4"),
            "1 2 3 4");
}

TEST(StripControls, DoublesTheReturnOfALineBreak) {
  EXPECT_EQ(StripControls("1\r\n2"), "1\r\r\n2");
  EXPECT_EQ(StripControls("1\t2\v3"), "1 2\r\n3");
}

TEST(PastedLine, DateFirstTakesSevenBalls) {
  const PastedLine line = TakeApart(Clean("05/12/2005 1 2 3 4 5 6 7 99"), DateOrder::kDayFirst);
  EXPECT_EQ(line.date_part, "05/12/2005");
  EXPECT_EQ(Balls(line), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));
}

TEST(PastedLine, DateBehindSixBallsLeavesTheBonusOut) {
  const PastedLine line = TakeApart("1 2 3 4 5 6 05/12/05 7", DateOrder::kDayFirst);
  EXPECT_EQ(line.date_part, "05/12/05");
  EXPECT_EQ(Balls(line), (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "-"}));
}

TEST(PastedLine, DateBehindSevenTakesTheBonus) {
  EXPECT_EQ(Balls(TakeApart("1 2 3 4 5 6 7 05/12/05", DateOrder::kDayFirst)),
            (std::vector<std::string>{"1", "2", "3", "4", "5", "6", "7"}));
}

TEST(PastedLine, DateBehindFourOrFiveTakesThose) {
  EXPECT_EQ(Balls(TakeApart("1 2 3 4 05/12/05", DateOrder::kDayFirst)),
            (std::vector<std::string>{"1", "2", "3", "4", "-", "-", "-"}));
  EXPECT_EQ(Balls(TakeApart("1 2 3 4 5 05/12/05 6", DateOrder::kDayFirst)),
            (std::vector<std::string>{"1", "2", "3", "4", "5", "-", "-"}));
}

TEST(PastedLine, AnyOtherPlaceGivesNoBalls) {
  EXPECT_EQ(Balls(TakeApart("1 2 3 05/12/05 4", DateOrder::kDayFirst)),
            std::vector<std::string>(7, "-"));
}

TEST(PastedLine, TooFewPartsAreADate) {
  EXPECT_EQ(TakeApart("05/12/05 1", DateOrder::kDayFirst).date_part, "05/12/05 1");
  EXPECT_EQ(TakeApart("", DateOrder::kDayFirst).date_part, "");
}

}  // namespace
}  // namespace store
