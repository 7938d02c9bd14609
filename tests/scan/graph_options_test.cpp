#include "scan/graph_options.h"

#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

// A desk with a scan behind it, in which ball k of 1 to 12 came up 12 + k times.
class ScannedGraph : public testing::Test {
 protected:
  ScannedGraph() {
    desk_.settings.Save("velmonte", "390", "Tips", "False");
    desk_.Start();
    for (int ball = 1; ball <= 12; ++ball) {
      desk_.Main().ProgressBar1(ball).SetValue(static_cast<float>(12 + ball));
    }
    desk_.User().Pick(desk_.Main().Combo11, 1);
    desk_.User().Click(desk_.Main().Label5);
  }
  void Apply(const std::string& row) {
    base::ListBox& rows = desk_.Main().LstMainWinSettings;
    for (int i = 0; i < rows.ListCount(); ++i) {
      if (rows.Row(i) == row) desk_.User().Pick(rows, i);
    }
    desk_.User().DoubleClick(rows);
  }
  std::vector<int> Shown() {
    std::vector<int> shown;
    desk_.Main().ProgressBar1.Each([&](const base::Bar& bar) {
      if (bar.Visible()) shown.push_back(bar.Index());
    });
    return shown;
  }
  TestDesk desk_;
};

TEST(GraphOptions, WithoutAScanTellSo) {
  TestDesk desk;
  desk.Start();
  desk.User().DoubleClick(desk.Main().LstMainWinSettings);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"There is no data to work with, please use scan first"});
  desk.User().Press(desk.Main().ProgressBar1(3), base::MouseButton::kRight);
  EXPECT_EQ(desk.Main().LstGraphStyles.ListCount(), 0);
  desk.User().Choose(desk.Frame().MnuBlue);
  EXPECT_FALSE(desk.Frame().MnuBlue.Checked());
}

TEST_F(ScannedGraph, FillsItsListsOnce) {
  const base::ListBox& rows = desk_.Main().LstMainWinSettings;
  EXPECT_EQ(rows.ListCount(), 24);
  EXPECT_EQ(rows.Row(0), "Refresh Graph");
  EXPECT_EQ(rows.Row(4), "Show odd");
  EXPECT_EQ(rows.Row(5), "Show past 2 draws");
  EXPECT_EQ(rows.Row(23), "Show past 20 draws");
  EXPECT_EQ(desk_.Main().LstGraphStyles.Text(), "Standard (Blue)");
  desk_.User().Click(desk_.Main().Label5);
  EXPECT_EQ(rows.ListCount(), 24);
}

TEST_F(ScannedGraph, SortsLowToHighAndBack) {
  desk_.Main().ProgressBar1(1).SetValue(99);
  desk_.User().Pick(desk_.Main().Combo11, 1);
  Apply("Low to high");
  EXPECT_EQ(desk_.Main().ProgressBar1(1).Value(), 14);
  EXPECT_EQ(desk_.Main().Label1(1).Caption(), "2");
  EXPECT_EQ(desk_.Main().Label2(1).Caption(), "14");
  EXPECT_EQ(desk_.Main().ProgressBar1(12).Value(), 99);
  EXPECT_EQ(desk_.Main().Label1(12).Caption(), "1");
  Apply("Normal");
  EXPECT_EQ(desk_.Main().ProgressBar1(1).Value(), 99);
  EXPECT_EQ(desk_.Main().Label1(1).Caption(), "1");
  EXPECT_EQ(desk_.Main().ProgressBar1(2).Value(), 14);
}

TEST_F(ScannedGraph, ColoursASortedGraphByItsRows) {
  desk_.User().Pick(desk_.Main().LstGraphStyles, 1);
  Apply("Low to high");
  EXPECT_EQ(desk_.Main().ProgressBar1(4).RankBand(), base::Band::kCold);  // row 3 of 12
  EXPECT_EQ(desk_.Main().ProgressBar1(5).RankBand(), base::Band::kWarm);  // row 4
  EXPECT_EQ(desk_.Main().ProgressBar1(9).RankBand(), base::Band::kWarm);  // row 8
  EXPECT_EQ(desk_.Main().ProgressBar1(10).RankBand(), base::Band::kHot);  // row 9
  EXPECT_EQ(desk_.Main().ProgressBar1(10).FillColor(), 0x0000FFu);
}

TEST_F(ScannedGraph, HidesByTheCountNotTheBall) {
  Apply("Show odd");
  EXPECT_FALSE(desk_.Main().ProgressBar1(2).Visible());  // 14
  EXPECT_TRUE(desk_.Main().ProgressBar1(1).Visible());   // 13
  EXPECT_FALSE(desk_.Main().ProgressBar1(0).Visible());  // 0
  Apply("Show even");
  EXPECT_FALSE(desk_.Main().ProgressBar1(1).Visible());
  EXPECT_TRUE(desk_.Main().ProgressBar1(2).Visible());
}

TEST_F(ScannedGraph, RefreshShowsAllAndClearsMarks) {
  desk_.User().Press(desk_.Main().ProgressBar1(3), base::MouseButton::kLeft);
  EXPECT_EQ(desk_.Main().ProgressBar1(3).BorderStyle(), 1);
  Apply("Show odd");
  Apply("Refresh Graph");
  EXPECT_EQ(Shown().size(), 100u);
  EXPECT_EQ(desk_.Main().ProgressBar1(3).BorderStyle(), 0);
}

TEST_F(ScannedGraph, ShowsOnlyTheBallsOfPastDraws) {
  desk_.User().Click(desk_.Main().cmdLast);
  ASSERT_EQ(desk_.Session().current_draw_number, 39);
  Apply("Show past 2 draws");
  EXPECT_TRUE(desk_.boxes.shown.empty());
  std::vector<int> expected;
  for (const std::size_t row : {std::size_t{39}, std::size_t{37}}) {
    for (int k = 0; k < 7; ++k) expected.push_back(std::stoi(SampleDraws(40)[row].Ball(k)));
  }
  std::sort(expected.begin(), expected.end());
  expected.erase(std::unique(expected.begin(), expected.end()), expected.end());
  EXPECT_EQ(Shown(), expected);
  EXPECT_EQ(desk_.Main().ListView1.SelectedIndex(), 40);
}

TEST_F(ScannedGraph, TellsWhenThereAreNotSoManyDraws) {
  desk_.Session().current_draw_number = 3;
  Apply("Show past 5 draws");
  EXPECT_EQ(desk_.TakeBoxTexts(),
            std::vector<std::string>{
                "There are not 4 draws in the buffer QND has reached the first record"});
  EXPECT_EQ(Shown().size(), 100u);
}

TEST_F(ScannedGraph, StylesSetTheColours) {
  desk_.User().Pick(desk_.Main().LstGraphStyles, 2);
  EXPECT_EQ(desk_.Main().ProgressBar1(1).FillColor(), 0xFF0000u);
  EXPECT_EQ(desk_.Main().ProgressBar1(6).FillColor(), 0x0000FFu);  // rank 6 of 12, half is 6
  EXPECT_EQ(desk_.Session().bar_colours.warm, 0x00FF00u);
  desk_.User().Pick(desk_.Main().LstGraphStyles, 0);
  EXPECT_EQ(desk_.Main().ProgressBar1(6).FillColor(), 0xFF0000u);
}

TEST_F(ScannedGraph, AStyleMenuClearsTheOtherTwo) {
  desk_.User().Choose(desk_.Frame().MnuHC);
  EXPECT_TRUE(desk_.Frame().MnuHC.Checked());
  EXPECT_EQ(desk_.Main().LstGraphStyles.Text(), "Cold and Hot");
  desk_.User().Choose(desk_.Frame().MnuRWC);
  EXPECT_TRUE(desk_.Frame().MnuRWC.Checked());
  EXPECT_FALSE(desk_.Frame().MnuHC.Checked());
  EXPECT_EQ(desk_.settings.Get("velmonte", "390", "MnuRWC"), "True");
  EXPECT_EQ(desk_.settings.Get("velmonte", "390", "MnuHC"), "False");
  EXPECT_EQ(desk_.Main().ProgressBar1(8).FillColor(), 0x00FF00u);
}

TEST_F(ScannedGraph, AClickDuringAScanMarksNothing) {
  desk_.pump.At(10, [&] {
    desk_.User().Press(desk_.Main().ProgressBar1(3), base::MouseButton::kLeft);
    EXPECT_EQ(desk_.Main().ProgressBar1(3).BorderStyle(), 0);
  });
  desk_.User().Click(desk_.Main().CmdScan);
}

TEST_F(ScannedGraph, TheMouseReadsABar) {
  Apply("Normal");
  desk_.Main().Label1(8).SetCaption("08");
  desk_.User().Hover(desk_.Main().ProgressBar1(8));
  EXPECT_EQ(desk_.Main().TxtGraph.Caption(),
            "08 has been drawn 20 times since the lottery begain.\r\n"
            "To date 08 has appeared every 1.95 draws\r\n");
  EXPECT_EQ(desk_.Main().ProgressBar1(8).ToolTipText(), "Number 8");
  desk_.User().Hover(desk_.Main().Label1(8));
  EXPECT_EQ(desk_.Main().Label1(8).ToolTipText(), "08 has appeared 20 times ");
  desk_.User().Hover(desk_.Main().ProgressBar1(60));
  EXPECT_EQ(desk_.Main().TxtGraph.Caption(), "");
  desk_.User().Click(desk_.Main().OpScanRange);
  desk_.Main().TxtStartDrawAt(0).SetText("5");
  desk_.Main().Label2(8).SetCaption("1");
  desk_.User().Hover(desk_.Main().ProgressBar1(8));
  EXPECT_EQ(desk_.Main().TxtGraph.Caption(), "08 has been drawn 20 times in 34 draws\r\n");
}

TEST_F(ScannedGraph, WidensItsBars) {
  desk_.User().MoveScroll(desk_.Main().HScroll1, 200);
  EXPECT_EQ(desk_.Main().ProgressBar1(5).Width(), 200);
  EXPECT_EQ(desk_.Main().ProgressBar1(6).Left(), desk_.Main().ProgressBar1(5).Left() + 188);
}

TEST(Panels, ShowOneAtATime) {
  TestDesk desk;
  desk.Start();
  main_window::MainWindow& window = desk.Main();
  EXPECT_TRUE(window.Picture4.Visible());
  EXPECT_FALSE(window.Picture3.Visible());
  desk.User().Click(window.Label4);
  EXPECT_TRUE(window.Picture3.Visible());
  EXPECT_FALSE(window.Picture4.Visible());
  EXPECT_EQ(window.Label4.BackColor(), 0xFFFFFFu);
  EXPECT_EQ(window.Label4.ForeColor(), 0xFF0000u);
  EXPECT_EQ(window.Label3.BackColor(), 0xE0E0E0u);
  EXPECT_EQ(window.Picture3.Left(), 120);
  EXPECT_EQ(window.Picture3.Height(), 2115);
}

}  // namespace
}  // namespace test
