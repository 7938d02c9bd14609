#include <gtest/gtest.h>

#include "base/language/text.h"
#include "support/test_desk.h"

namespace test {
namespace {

void Count(main_window::MainWindow& window, int ball, float count) {
  window.ProgressBar1(ball).SetValue(count);
}

void OpenQuietly(TestDesk& desk) {
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
}

TEST(Frequencies, CutBothListsAtABallNeverDrawn) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 2, 3, 5, 6, 7, 8})));
  OpenQuietly(desk);
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().List3.Rows(), (std::vector<std::string>{"040 1", "040 2", "040 3"}));
}

TEST(Frequencies, RankTiesByTheTextOfTheBall) {
  TestDesk desk;
  OpenQuietly(desk);
  for (int ball = 1; ball <= 12; ++ball) Count(desk.Main(), ball, 45);
  desk.User().Pick(desk.Main().Combo11, 1);
  const auto& rows = desk.Main().LstMainWindowSorted.Rows();
  ASSERT_EQ(rows.size(), 12u);
  EXPECT_EQ(rows[0], "045 1");
  EXPECT_EQ(rows[1], "045 10");
  EXPECT_EQ(rows[3], "045 12");
  EXPECT_EQ(rows[9], "045 7");
  EXPECT_EQ(desk.Main().List3.Row(6), "045 7");
}

TEST(Frequencies, WriteTheChosenReportBesideTheDatabase) {
  TestDesk desk;
  OpenQuietly(desk);
  desk.User().Click(desk.Main().CmdScan);
  desk.User().Pick(desk.Main().Combo11, 0);
  EXPECT_EQ(desk.ReadFile("DataBases/UK-National-Lottery List by frequencys.txt"),
            desk.Main().TxtResultsBox.Text());
  EXPECT_EQ(desk.Session().data_base_name, "UK-National-Lottery");
  desk.User().Pick(desk.Main().Combo11, 1);
  const std::string due =
      desk.ReadFile("DataBases/UK-National-Lottery View numbers due to appear.txt");
  EXPECT_EQ(due.substr(0, 38), "QND due results calculated from the 01");
  EXPECT_EQ(due, desk.Main().TxtResultsBox.Text());
}

TEST(Frequencies, ReportBeforeAScanIsItsHeading) {
  TestDesk desk;
  OpenQuietly(desk);
  desk.User().Pick(desk.Main().Combo11, 0);
  EXPECT_EQ(desk.Main().TxtResultsBox.Text(),
            "QND ball frequency results from the 01/01/00 to the 01/01/00\r\n\r\n");
  EXPECT_EQ(desk.Main().LabFilterCount.Caption(), "0");
}

TEST(Frequencies, CountFromTheSelectedDrawOfARange) {
  TestDesk desk;
  OpenQuietly(desk);
  main_window::MainWindow& window = desk.Main();
  desk.User().Click(window.OpScanRange);
  desk.User().Pick(window.List7, 4);
  EXPECT_EQ(window.TxtStartDrawAt(0).Text(), "5");
  desk.User().Pick(window.Combo11, 0);
  EXPECT_EQ(window.txtDate.Tag(), "05/01/00");
}

TEST(Frequencies, ErrorGoesToTheReporterWithTheReportSoFar) {
  TestDesk desk;
  OpenQuietly(desk);
  Count(desk.Main(), 1, 10);
  Count(desk.Main(), 2, 40000);
  desk.User().Pick(desk.Main().Combo11, 0);
  ASSERT_FALSE(desk.boxes.shown.empty());
  EXPECT_NE(desk.boxes.shown[0].text.find("illigal operation at BallFrequancysMainWindow"),
            std::string::npos);
  EXPECT_NE(desk.boxes.shown[0].text.find("Error Number [6] "), std::string::npos);
  EXPECT_NE(desk.Main().TxtResultsBox.Text().find("01 has appeard 010"), std::string::npos);
  EXPECT_EQ(desk.Main().TxtResultsBox.Text().find("02 has"), std::string::npos);
}

TEST(Frequencies, EveryBallDrawnRaisesTheErrorOfAMissingBar) {
  TestDesk desk;
  OpenQuietly(desk);
  for (int ball = 1; ball <= 99; ++ball) Count(desk.Main(), ball, 3);
  desk.User().Click(desk.Main().CmdScan);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "Run-time error '340':\r\n\r\nControl array element '100' doesn't exist");
  EXPECT_EQ(desk.boxes.shown[0].icon, base::BoxIcon::kCritical);
}

TEST(Frequencies, ButtonsRefuseBeforeAScan) {
  TestDesk desk;
  desk.Start();
  desk.User().Press(desk.Main().lblbuttons(2), base::MouseButton::kLeft);
  ASSERT_EQ(desk.boxes.shown.size(), 2u);
  EXPECT_EQ(desk.boxes.shown[0].title, "Not enough data to make wheel");
  EXPECT_EQ(desk.boxes.shown[0].text, "Please click scan before creating a wheel");
  EXPECT_EQ(desk.boxes.shown[1].text,
            "Tip: Click scan to begin analysing the lottery results\r\n"
            "When the scan completes click the Make Wheel button to use the results in a wheel");
}

TEST(Frequencies, DueListLeavesOutBallsFrom62) {
  TestDesk desk(std::vector<store::DrawRecord>(40, Draw({1, 2, 3, 61, 62, 63, 64})));
  OpenQuietly(desk);
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Main().List1.Rows(),
            (std::vector<std::string>{"01.00 01", "01.00 02", "01.00 03", "01.00 61"}));
  EXPECT_NE(desk.Main().TxtResultsBox.Text().find("\r\n62 has appeared 040"), std::string::npos);
}

TEST(Graph, ColoursThirdsOfTheRanking) {
  TestDesk desk;
  OpenQuietly(desk);
  for (int ball = 1; ball <= 49; ++ball) Count(desk.Main(), ball, static_cast<float>(100 + ball));
  desk.User().Pick(desk.Main().Combo11, 1);
  int bands[4] = {};
  for (int ball = 1; ball <= 49; ++ball) {
    ++bands[static_cast<int>(desk.Main().ProgressBar1(ball).RankBand())];
  }
  EXPECT_EQ(bands[1], 15);
  EXPECT_EQ(bands[2], 17);
  EXPECT_EQ(bands[3], 17);
  EXPECT_EQ(desk.Main().ProgressBar1(1).RankBand(), base::Band::kCold);
  EXPECT_EQ(desk.Main().ProgressBar1(49).FillColor(), 0xFF0000u);
}

TEST(Graph, ColoursHalvesInColdAndHot) {
  TestDesk desk;
  desk.settings.Save("velmonte", "390", "MnuHC", "True");
  OpenQuietly(desk);
  for (int ball = 1; ball <= 49; ++ball) Count(desk.Main(), ball, static_cast<float>(100 + ball));
  desk.User().Pick(desk.Main().Combo11, 1);
  int cold = 0;
  for (int ball = 1; ball <= 49; ++ball) {
    cold += desk.Main().ProgressBar1(ball).RankBand() == base::Band::kCold;
  }
  EXPECT_EQ(cold, 23);
}

}  // namespace
}  // namespace test
