#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

TEST(Browsing, ShowsRowNumbersOneBelow) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 1);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "0");
  desk.User().Click(desk.Main().cmdLast);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "39");
  EXPECT_EQ(desk.Session().current_draw_number, 39);
  EXPECT_EQ(desk.Session().selected_list_row, 40);
}

TEST(Browsing, FirstSetsTheNumberWithoutWritingItsBox) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdLast);
  desk.User().Click(desk.Main().cmdFirst);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "0");
  EXPECT_EQ(desk.Session().current_draw_number, 1);
  EXPECT_EQ(desk.Session().draw_count, 1);
  EXPECT_EQ(desk.Session().filter_count, 1);
}

TEST(Browsing, WalksByRows) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdNext);
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 2);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "1");
  desk.User().Click(desk.Main().cmdPrev);
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 1);
}

TEST(Browsing, TellsTheFirstRecordUnderTheWindowsTitle) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdPrev);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text, "This is the first record");
  EXPECT_EQ(desk.boxes.shown[0].title, "Quorbit Number Desk UK-National-Lottery.dat");
}

TEST(Browsing, NextOnTheLastRowDoesNothing) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdLast);
  desk.User().Click(desk.Main().cmdNext);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 40);
}

TEST(Browsing, NextTellsTheLastRecordAtTheUpperBound) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().List7, 39);
  ASSERT_EQ(desk.Session().current_draw_number, 40);
  desk.User().Click(desk.Main().cmdNext);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text, "This is the last record");
  EXPECT_EQ(desk.boxes.shown[0].title, "End of File");
}

TEST(Browsing, ShowsBallsUnpaddedAndTheDayShort) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({7, 12, 19, 27, 35, 0, 8}, "We")));
  desk.Start();
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "7");
  EXPECT_EQ(desk.Main().TxtBall06.Text(), "0");
  EXPECT_EQ(desk.Main().TxtBallBB.Text(), "8");
  EXPECT_EQ(desk.Main().TxtBall07.Text(), "Wed");
  EXPECT_EQ(desk.Main().txtDate.Text(), "05/12/05");
  EXPECT_EQ(desk.Main().ListView1.Cell(1, 0), "07");
}

TEST(Browsing, LastTellsWhatWasEnteredLast) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({7, 12, 19, 27, 35, 36, 8}, "Sa")));
  desk.Start();
  desk.User().Click(desk.Main().cmdLast);
  EXPECT_EQ(desk.Main().Label27.Caption(), "The last draw entered was Sat : 05/12/05");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Main().ListView1);
}

TEST(Browsing, LineListReadsTheRecordFromTheFile) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().List7, 4);
  EXPECT_EQ(desk.Session().current_draw_number, 5);
  EXPECT_EQ(desk.Session().file_pos, 4 * 44 + 1);
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "5");
  EXPECT_EQ(desk.Main().txtDate.Text(), "05/01/00");
}

TEST(Browsing, HighlightMarksTheSixMainBalls) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({7, 12, 19, 27, 35, 36, 8})));
  desk.settings.Save("velmonte", "390", "MnuHgight", "True");
  desk.Start();
  EXPECT_EQ(desk.Main().ProgressBar1(7).BorderStyle(), 0);
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Pick(desk.Main().ListView1, 6);
  EXPECT_EQ(desk.Main().ProgressBar1(7).BorderStyle(), 1);
  EXPECT_EQ(desk.Main().ProgressBar1(36).BackColor(), 0xE0E0E0u);
  EXPECT_EQ(desk.Main().ProgressBar1(8).BorderStyle(), 0);
}

TEST(Browsing, TheMarkOfAMissingBallGoesWithTheHighlight) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({7, 12, 19, 27, 35})));
  desk.settings.Save("velmonte", "390", "MnuHgight", "True");
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Pick(desk.Main().ListView1, 6);
  EXPECT_EQ(desk.Main().ProgressBar1(0).BorderStyle(), 1);
  desk.User().Choose(desk.Frame().MnuHgight);
  EXPECT_EQ(desk.Main().ProgressBar1(0).BorderStyle(), 0);
  EXPECT_EQ(desk.Main().ProgressBar1(0).BackColor(), 0xFFFFFFu);
}

TEST(Browsing, EmptyTableLoadsTheBuffersAgain) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.Clear();
  desk.User().Key(desk.Main().ListView1, 40);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].title, "Buffers are empty");
  EXPECT_EQ(desk.boxes.shown[0].icon, base::BoxIcon::kCritical);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "An error has occured loading the draw results in to QND's buffers\r\n"
            "QND will now attempt to reload the buffers");
  EXPECT_TRUE(desk.Session().database.IsOpen());
}

TEST(DayFilter, StepsToTheFirstDrawOfTheDay) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().Combo7, 5);  // Wednesday
  EXPECT_EQ(desk.Session().current_draw_number, 2);
  EXPECT_EQ(desk.Main().TxtBall07.Text(), "Wed");
}

TEST(DayFilter, StandsOnADrawOfThatDay) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().Combo7, 1);  // Saturday
  EXPECT_EQ(desk.Session().current_draw_number, 1);
}

TEST(DayFilter, WithoutAMatchStopsOnTheLastRecord) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().Combo7, 2);  // Sunday
  EXPECT_EQ(desk.Session().current_draw_number, 40);
  EXPECT_EQ(desk.Main().TxtBall07.Text(), "Sat");
}

TEST(StartDraw, TakesDigitsOnly) {
  TestDesk desk;
  desk.Start();
  desk.User().Type(desk.Main().TxtStartDrawAt(1), "1x2-");
  EXPECT_EQ(desk.Main().TxtStartDrawAt(1).Text(), "012");
}

TEST(StartDraw, GoesToTheDrawAndClearsAllCounts) {
  TestDesk desk;
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  desk.Main().TxtStartDrawAt(0).SetText("");
  desk.User().Type(desk.Main().TxtStartDrawAt(0), "7");
  EXPECT_EQ(desk.Main().List7.ListIndex(), 6);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 0);
  EXPECT_EQ(desk.Session().current_draw_number, 1);
}

TEST(StartDraw, BeyondTheEndBecomesTheLast) {
  TestDesk desk;
  desk.Start();
  desk.Main().TxtStartDrawAt(0).SetText("9");
  desk.User().Type(desk.Main().TxtStartDrawAt(0), "9");
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "40");
}

TEST(StartDraw, EmptyBecomesZero) {
  TestDesk desk;
  desk.Start();
  desk.User().Type(desk.Main().TxtStartDrawAt(0), "{Back}");
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "0");
}

// A first ball without a bar kept every later row from the boxes.
TEST(Browsing, GoesOnBehindABallWithoutABar) {
  auto draws = SampleDraws(40);
  draws[2].b[0] = "150";
  TestDesk desk(draws);
  desk.settings.Save("velmonte", "390", "MnuHgight", "True");
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 3);
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "150");
  desk.User().Pick(desk.Main().ListView1, 4);
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Pick(desk.Main().ListView1, 5);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "4");
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace test
