#include "main/row_editor.h"

#include <gtest/gtest.h>

#include "support/desk_acts.h"
#include "support/test_desk.h"

namespace test {
namespace {

TEST(RowEditor, ShowsTheRowAndWritesItBack) {
  TestDesk desk;
  desk.Start();
  main_window::MainWindow& window = desk.Main();
  desk.User().Pick(window.ListView1, 3);
  desk.User().DoubleClick(window.ListView1);
  EXPECT_TRUE(window.Picture6.Visible());
  EXPECT_EQ(window.TxtChange(7).Text(), "03/01/00");
  window.TxtChange(0).SetText("9");
  window.TxtChange(8).SetText("Mon");
  desk.User().Click(window.Label18);
  EXPECT_FALSE(window.Picture6.Visible());
  EXPECT_EQ(window.ListView1.Cell(3, 0), "09");
  EXPECT_TRUE(desk.Session().data_base_changed);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected[2].b[0] = "09";
  expected[2].day = "Mo";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(RowEditor, RefusesAShortDate) {
  TestDesk desk;
  desk.Start();
  desk.User().DoubleClick(desk.Main().ListView1);
  desk.Main().TxtChange(7).SetText("1/1/00");
  desk.User().Click(desk.Main().Label18);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"Please check the date is in this format 00/00/00"});
  EXPECT_TRUE(desk.Main().Picture6.Visible());
  EXPECT_EQ(desk.Main().ListView1.Cell(1, 7), "01/01/00");
  desk.User().Click(desk.Main().CmdCancelSave);
  EXPECT_FALSE(desk.Main().Picture6.Visible());
}

TEST(RowEditor, RemovalReachesTheFileAtTheClose) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 40);
  desk.User().Click(desk.Main().Command18);
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 39);
  EXPECT_EQ(desk.Session().selected_list_row, 39);
  EXPECT_EQ(desk.DatabaseBytes().size(), 40u * 44);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(39)));
}

// Next moved the selection under the open panel, and Accept wrote to the row that it had come to.
TEST(RowEditor, WritesToTheRowThatItWasOpenedOn) {
  TestDesk desk;
  desk.Start();
  main_window::MainWindow& window = desk.Main();
  desk.User().Pick(window.ListView1, 3);
  desk.User().DoubleClick(window.ListView1);
  window.TxtChange(0).SetText("09");
  desk.User().Click(window.cmdNext);
  desk.User().Click(window.Label18);
  EXPECT_EQ(window.ListView1.Cell(3, 0), "09");
  EXPECT_EQ(window.ListView1.Row(4)[0], SampleDraws(4)[3].b[0]);
}

TEST(RowEditor, OfARemovedRowNothingIsWritten) {
  TestDesk desk;
  desk.Start();
  main_window::MainWindow& window = desk.Main();
  desk.User().Pick(window.ListView1, 3);
  desk.User().DoubleClick(window.ListView1);
  window.TxtChange(0).SetText("99");
  desk.User().Click(window.Command18);
  desk.User().Click(window.Label18);
  EXPECT_FALSE(window.Picture6.Visible());
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected.erase(expected.begin() + 2);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(RowEditor, TakesNothingForABlankRow) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  desk.Start();
  desk.User().DoubleClick(desk.Main().ListView1);
  EXPECT_FALSE(desk.Main().Label18.Enabled());
}

// The row that took the place of a removed one was selected, but the removed draw stood in the
// boxes: Edit and Save then destroyed another.
TEST(RowEditor, ShowsTheRowThatTakesThePlaceOfARemovedOne) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Click(desk.Main().Command18);
  EXPECT_EQ(desk.Main().txtDate.Text(), SampleDraws(6)[5].date);
  EXPECT_EQ(desk.Main().txtRecNum.Text(), "4");
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("49");
  desk.User().Click(desk.Main().cmdedit);
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected[5].b[5] = "49";
  expected.erase(expected.begin() + 4);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(RowEditor, LeavesTheBoxesToAnEditOfTheSameDraw) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Click(desk.Main().cmdedit);
  desk.User().Paste(desk.Main().TxtBall05, "48");
  desk.User().DoubleClick(desk.Main().ListView1);
  desk.User().Paste(desk.Main().TxtChange(5), "49");
  desk.User().Click(desk.Main().Label18);
  EXPECT_EQ(desk.Main().ListView1.Cell(3, 5), "49");
  EXPECT_EQ(desk.Main().TxtBall05.Text(), "48");
}

// The selected row of the table was removed, which after a pick in the line list is another draw.
TEST(RowEditor, RemovesTheDrawOnShow) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Pick(desk.Main().List7, 9);
  desk.User().Click(desk.Main().Command18);
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected.erase(expected.begin() + 9);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(RowEditor, ARemovedDrawCanBeNeitherEditedNorRemovedAgain) {
  TestDesk desk;
  desk.Start();
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Click(desk.Main().Command18);
  desk.User().Pick(desk.Main().List7, 2);
  EXPECT_EQ(desk.Main().txtDate.Text(), SampleDraws(3)[2].date);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.User().Pick(desk.Main().List7, 3);
  EXPECT_TRUE(desk.Main().cmdedit.Enabled());
}

TEST(RowEditor, TheLastRowLeftCanBeRemoved) {
  TestDesk desk(SampleDraws(1));
  desk.Start();
  desk.User().Click(desk.Main().Command18);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 0);
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), "");
}

// With an empty table the desk loads the file anew; the draw that was typed then was refused.
TEST(RowEditor, AfterTheLastRowADrawCanBeAdded) {
  for (const int count : {0, 1, 40}) {
    SCOPED_TRACE(std::to_string(count) + " draws");
    TestDesk desk(SampleDraws(count));
    StartQuietly(desk);
    while (desk.Main().ListView1.RowCount() > 0) desk.User().Click(desk.Main().Command18);
    SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(desk.TakeBoxTexts(),
              std::vector<std::string>{
                  "An error has occured loading the draw results in to QND's buffers\r\n"
                  "QND will now attempt to reload the buffers"});
    auto expected = SampleDraws(count);
    expected.push_back(Draw({1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
    desk.Desk().Stop();
    EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  }
}

}  // namespace
}  // namespace test
