#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

using base::Answer;

std::vector<store::DrawRecord> SevenBallDraws(int n) {
  std::vector<store::DrawRecord> draws;
  for (int i = 0; i < n; ++i) draws.push_back(Draw({1, 2, 3, 4, 5, 6, 7}, i % 2 ? "We" : "Mo"));
  return draws;
}

TEST(MainScan, CountsEveryDrawOfTheFile) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 40);
  EXPECT_EQ(desk.Main().ProgressBar1(7).Value(), 40);
  EXPECT_EQ(desk.Main().ProgressBar1(8).Value(), 0);
  EXPECT_EQ(desk.Main().Label2(7).Caption(), "40");
}

TEST(MainScan, EndsOneBelowTheNumberOfDraws) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "39");
  EXPECT_EQ(desk.Session().current_draw_number, 39);
  EXPECT_EQ(desk.Session().filter_count, 39);
  EXPECT_EQ(desk.Session().scan_tally, 40);
  EXPECT_EQ(desk.Main().LabFilterCount.Caption(), "0");
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 40);
  EXPECT_TRUE(desk.Main().lblbuttons(2).Enabled());
  EXPECT_TRUE(desk.Main().cmdAdd.Enabled());
}

TEST(MainScan, EndsWithTheTipOnlyWhenTipsAreOn) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "Tip: You can right click the graph for additional options\r\n");
  EXPECT_EQ(desk.boxes.shown[0].title,
            "QND Tips are on, use the menu Settings/options to turn these Tips off");
  EXPECT_EQ(desk.boxes.shown[0].icon, base::BoxIcon::kInformation);

  TestDesk quiet(SevenBallDraws(40));
  quiet.settings.Save("velmonte", "390", "Tips", "False");
  quiet.Start();
  quiet.User().Click(quiet.Main().CmdScan);
  EXPECT_TRUE(quiet.boxes.shown.empty());
}

TEST(MainScan, SetsTheScaleToTheHighestCount) {
  TestDesk desk(SevenBallDraws(120));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(0).Max(), 120);
  EXPECT_EQ(desk.Main().ProgressBar1(99).Max(), 120);
}

TEST(MainScan, KeepsTwentyFiveToSpareWhileItRuns) {
  TestDesk desk(SevenBallDraws(120));
  desk.Start();
  desk.pump.At(3 * 80, [&] { EXPECT_EQ(desk.Main().ProgressBar1(1).Max(), 110); });
  desk.User().Click(desk.Main().CmdScan);
}

TEST(MainScan, NestedStopReportsThePartScanned) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  // The first yield belongs to the ranking at the start; each pass of the loop yields three times.
  desk.pump.At(1 + 3 * 9 + 1, [&] { desk.User().Click(desk.Main().CmdScan); });
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 10);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "9");
  EXPECT_NE(desk.Main().TxtResultsBox.Text().find("01 has appeard 010 times in 9 draws"),
            std::string::npos);
}

TEST(MainScan, AsksBeforeANewScanAndDoublesFiguresAfterIt) {
  TestDesk desk(SevenBallDraws(40));
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  desk.boxes.answers = {Answer::kYes};
  desk.User().Click(desk.Main().CmdScan);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text, "This will start a new scan, continue.");
  EXPECT_EQ(desk.boxes.shown[0].title, "Last Record");
  EXPECT_EQ(desk.boxes.shown[0].buttons, base::BoxButtons::kYesNo);
  // The reset counts the first draw once before the scan reads it again.
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 41);
  EXPECT_EQ(desk.Session().scan_tally, 80);
  EXPECT_EQ(desk.Session().filter_count, 79);
  // The report falls back on the draw number, the due list does not.
  EXPECT_NE(desk.Main().TxtResultsBox.Text().find("01 has appeard 041 times in 39 draws"),
            std::string::npos);
  EXPECT_EQ(desk.Main().List1.Row(0), "01.95 01");
}

TEST(MainScan, NoToTheNewScanLeavesTheCountsAndTheButtons) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  desk.Main().cmdPrev.SetEnabled(false);
  desk.boxes.answers = {Answer::kNo};
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 40);
  EXPECT_TRUE(desk.Main().lblbuttons(2).Enabled());
  EXPECT_TRUE(desk.Main().cmdAdd.Enabled());
  EXPECT_TRUE(desk.Main().cmdFirst.Enabled());
  EXPECT_FALSE(desk.Main().cmdPrev.Enabled());
}

TEST(MainScan, FiltersByDay) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Pick(desk.Main().Combo7, 3);
  ASSERT_EQ(desk.Main().Combo7.Text(), "Monday");
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 20);
  EXPECT_EQ(desk.Session().filter_count, 20);
  EXPECT_EQ(desk.Main().LabFilterCount.Caption(), "20");
  EXPECT_NE(desk.Main().TxtResultsBox.Text().find("01 has appeard 020 times in 20 draws"),
            std::string::npos);
  // Every draw adds to the places, with the balls of the last one that passed.
  EXPECT_EQ(desk.Session().position_hits[0][1], 40);
}

TEST(MainScan, ScansADayAfterAScanOfAll) {
  TestDesk desk(SevenBallDraws(40));
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  desk.User().Pick(desk.Main().Combo7, 3);
  EXPECT_EQ(desk.Session().draw_count, 1);
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Session().filter_count, 20);
}

TEST(MainScan, SuspendsAtTheEndOfARange) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  main_window::MainWindow& window = desk.Main();
  desk.User().Click(window.OpScanRange);
  EXPECT_TRUE(window.Frame4.Visible());
  EXPECT_FALSE(window.Frame1.Visible());
  window.TxtStartDrawAt(0).SetText("5");
  window.TxtStartDrawAt(1).SetText("10");
  desk.User().Click(window.CmdScan);
  EXPECT_EQ(window.CmdScan.Caption(), "Stop");
  EXPECT_FALSE(window.cmdFirst.Enabled());
  EXPECT_EQ(window.TxtResultsBox.Text(), "");
  EXPECT_EQ(window.ProgressBar1(1).Value(), 6);      // draws 4 to 9
  EXPECT_EQ(desk.Session().position_hits[0][1], 8);  // every pass but the last
  desk.User().Click(window.CmdScan);
  EXPECT_EQ(window.CmdScan.Caption(), "Scan");
  EXPECT_TRUE(window.cmdFirst.Enabled());
  EXPECT_EQ(window.TxtResultsBox.Text(), "");
  EXPECT_EQ(window.ProgressBar1(1).Max(), 6);
}

TEST(MainScan, CountsNoBallInAnEmptySlot) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 2, 3, 4, 5, 0, 9})));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(0).Value(), 0);
  EXPECT_EQ(desk.Main().Label2(0).Caption(), "0");
  EXPECT_EQ(desk.Main().ProgressBar1(9).Value(), 40);
  EXPECT_FALSE(desk.Main().TxtBall06.Enabled());
  EXPECT_FALSE(desk.Main().Label7(7).Enabled());
}

TEST(MainScan, BallOneHundredStopsItSilently) {
  auto draws = SevenBallDraws(40);
  draws[20].b[5] = "100";
  TestDesk desk(draws);
  desk.Start();
  desk.boxes.shown.clear();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 21);
  EXPECT_EQ(desk.Main().ProgressBar1(7).Value(), 20);
  EXPECT_EQ(desk.Main().TxtResultsBox.Text(), "");
  EXPECT_EQ(desk.Session().current_draw_number, 22);
}

TEST(MainScan, TextThatIsNoNumberStopsItSilently) {
  auto draws = SevenBallDraws(40);
  draws[10].b[0] = "x1";
  TestDesk desk(draws);
  desk.Start();
  desk.boxes.shown.clear();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 10);
}

std::vector<store::DrawRecord> RuleChangeDraws() {
  auto draws = SevenBallDraws(260);
  draws[209].b[5] = "30";
  return draws;
}

TEST(MainScan, AsksOnceWhenTheRulesChange) {
  TestDesk desk(RuleChangeDraws());
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.boxes.answers = {Answer::kNo};
  desk.User().Click(desk.Main().CmdScan);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].title, "Draw rules have changed");
  EXPECT_EQ(desk.boxes.shown[0].text,
            "QND has detected a range change in the draw results, this will effect the results, do "
            "you wish to zero the current statistics at this point to correct the results");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 260);
  EXPECT_FALSE(desk.Session().prompt_on_range_change);
}

TEST(MainScan, ZeroesTheStatisticsOnYes) {
  TestDesk desk(RuleChangeDraws());
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.boxes.answers = {Answer::kYes};
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.Main().OpScanRange.Value());
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "208");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 50);
  EXPECT_EQ(desk.Session().position_hits[0][1], 260);
  EXPECT_EQ(desk.Session().scan_tally, 260);
  // The first complete scan after the reset leaves its counts as a snapshot.
  EXPECT_EQ(desk.Main().ProgressBar1(1).Tag(), "50");
}

TEST(MainScan, BeginsTheRangeTestAtDraw199) {
  auto draws = SevenBallDraws(260);
  draws[197].b[5] = "30";  // draw 198 is learnt
  draws[198].b[5] = "40";  // draw 199 is tested
  TestDesk desk(draws);
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  ASSERT_GE(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].title, "Draw rules have changed");
}

TEST(MainScan, IsSilentWhenTheQuestionIsSwitchedOff) {
  TestDesk desk(RuleChangeDraws());
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.settings.Save("velmonte", "390", "QND.PromptOnRangeChange", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(MainScan, LaterScansLeaveTheSnapshot) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(3).Tag(), "40");
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(3).Value(), 41);
  EXPECT_EQ(desk.Main().ProgressBar1(3).Tag(), "40");
}

TEST(MainScan, EndsWhenItsWindowIsClosed) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.pump.At(10, [&] { desk.User().Close(desk.Main()); });
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Desk().Main(), nullptr);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(MainScan, AHiddenDayBoxStopsItSilently) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.Main().TxtBall07.SetVisible(false);
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 1);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
}

TEST(MainScan, ShowsAHiddenBoxThatHasABall) {
  TestDesk desk(SevenBallDraws(40));
  desk.Start();
  desk.Main().TxtBall06.SetVisible(false);
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_TRUE(desk.Main().TxtBall06.Visible());
}

// The question came up again inside its own rescan, without end.
TEST(MainScan, AsksOnceInAFileOfOneDraw) {
  TestDesk desk(SevenBallDraws(1));
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_EQ(desk.Main().ProgressBar1(1).Value(), 2);
}

TEST(MainScan, EndsQuietlyInAnEmptyDatabase) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  desk.Start();
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.Main().CmdScan.Caption(), "Scan");
  EXPECT_TRUE(desk.Main().cmdAdd.Enabled());
}

}  // namespace
}  // namespace test
