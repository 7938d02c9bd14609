#include "store/row_editor.h"

#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

TEST(RowEditor, ShowsTheRowAndWritesItBack) {
  TestDesk desk;
  desk.Start();
  store::MainWindow& window = desk.Main();
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

}  // namespace
}  // namespace test
