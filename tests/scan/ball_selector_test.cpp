#include "scan/ball_selector.h"

#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

scan::FrmDropDown& OpenBoard(TestDesk& desk) {
  desk.User().Choose(desk.Frame().MnuNumberSelector);
  return *static_cast<scan::FrmDropDown*>(desk.Desk().Find("FrmDropDown"));
}

TEST(BallSelector, LeavesTheLastDrawOut) {
  TestDesk desk(
      {Draw({1, 2, 3, 4, 5, 6}), Draw({7, 8, 9, 10, 11, 12}), Draw({13, 14, 15, 16, 17, 18})});
  desk.Start();
  scan::FrmDropDown& board = OpenBoard(desk);
  desk.User().Click(board.CmdScan);
  EXPECT_EQ(board.txtRecNum.Text(), "3");
  // Draw 1 is placed twice.
  EXPECT_EQ(board.Label2(1).Caption(), "01");
  EXPECT_EQ(board.Label3(1).Caption(), "01");
  EXPECT_EQ(board.Label4(1).Caption(), "00");
  EXPECT_EQ(board.Label2(7).Caption(), "07");
  EXPECT_EQ(board.Label2(13).Caption(), "00");
  EXPECT_EQ(board.Label1(1).Caption(), "00");
  EXPECT_EQ(board.Label1(1).BackColor(), 0xFFFFFFu);
}

TEST(BallSelector, SuccessiveDrawsMarkRowsTwoAndThree) {
  TestDesk desk({Draw({1, 2, 3, 4, 5, 6}), Draw({9, 10, 11, 12, 13, 14}),
                 Draw({9, 20, 21, 22, 23, 24}), Draw({30, 31, 32, 33, 34, 35})});
  desk.Start();
  scan::FrmDropDown& board = OpenBoard(desk);
  desk.User().Click(board.CmdScan);
  EXPECT_EQ(board.Label2(9).BackColor(), 0x00FFFFu);
  EXPECT_EQ(board.Label3(9).BackColor(), 0x00FFFFu);
}

TEST(BallSelector, OneDrawIsRead) {
  TestDesk desk({Draw({1, 2, 3, 4, 5, 6})});
  desk.Start();
  scan::FrmDropDown& board = OpenBoard(desk);
  desk.User().Click(board.CmdScan);
  EXPECT_EQ(board.txtRecNum.Text(), "1");
  EXPECT_EQ(board.Label2(6).Caption(), "06");
}

TEST(BallSelector, AMissingBallGoesToColumnZero) {
  TestDesk desk({Draw({1, 2, 3, 4, 5}), Draw({6, 7, 8, 9, 10, 11})});
  desk.Start();
  scan::FrmDropDown& board = OpenBoard(desk);
  desk.User().Click(board.CmdScan);
  EXPECT_EQ(board.Label2(0).BackColor(), 0x00FFFFu);
}

TEST(BallSelector, ABallAbove52GoesToTheDefaultHandler) {
  TestDesk desk({Draw({1, 2, 3, 4, 5, 53}), Draw({1, 2, 3, 4, 5, 6})});
  desk.Start();
  scan::FrmDropDown& board = OpenBoard(desk);
  desk.User().Click(board.CmdScan);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{
                "Run-time error '340':\r\n\r\nControl array element '53' doesn't exist"});
}

}  // namespace
}  // namespace test
