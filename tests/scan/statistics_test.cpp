#include <gtest/gtest.h>

#include "base/language/error.h"
#include "scan/draw_statistics.h"
#include "support/test_desk.h"

namespace test {
namespace {

TEST(DrawStatistics, WorkOnTheFirstCountsByIndex) {
  const scan::DrawStatistics figures = scan::Statistics({10, 20, 30, 0});
  EXPECT_EQ(scan::StatisticsText(figures, 39),
            "Statistics from lottery as of draw number 39\r\n\r\n"
            "Standard Deviation 26.46\r\nMean 20\r\n"
            "Diffrence Of Standard Deviation and Mean 6.46\r\n\r\n"
            "Total value of all draws 60\r\n\r\n"
            "Range of numbers 3\r\nHighest from range 30\r\nLowest from range 10\r\n"
            "Diffrence Of range 20");
}

TEST(DrawStatistics, AGapLeavesOutHighBalls) {
  const scan::DrawStatistics figures = scan::Statistics({10, 0, 30});
  EXPECT_EQ(figures.range, 2);
  EXPECT_EQ(figures.total, 10);
  EXPECT_EQ(figures.lowest, 0);
}

TEST(DrawStatistics, TheLowestStartsAtAHundred) {
  const scan::DrawStatistics figures = scan::Statistics(std::vector<float>(49, 150));
  EXPECT_EQ(figures.lowest, 100);
  EXPECT_EQ(figures.highest - figures.lowest, 50);
}

TEST(DrawStatistics, NeedTwoBalls) {
  const auto error_of = [](const std::vector<float>& counts) {
    try {
      scan::Statistics(counts);
    } catch (const base::Error& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(error_of({0, 0}), base::kOverflow);
  EXPECT_EQ(error_of({3, 0}), base::kDivisionByZero);
  EXPECT_EQ(error_of({0, 3}), base::kOverflow);
}

TEST(DrawStatistics, WithoutAScanGoToTheReporter) {
  TestDesk desk;
  desk.Start();
  desk.User().Choose(desk.Frame().MnuStdDev);
  const std::vector<std::string> texts = desk.TakeBoxTexts();
  ASSERT_FALSE(texts.empty());
  EXPECT_NE(texts[0].find("illigal operation at MnuStdDev_Click"), std::string::npos);
}

TEST(DrawStatistics, AreShownUnderTheirTitle) {
  TestDesk desk;
  desk.Start();
  for (int ball = 1; ball <= 3; ++ball) {
    desk.Main().ProgressBar1(ball).SetValue(static_cast<float>(10 * ball));
  }
  desk.User().Choose(desk.Frame().MnuStdDev);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].title, "Draw Statistics");
}

}  // namespace
}  // namespace test
