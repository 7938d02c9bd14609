#include "main/draw_lists.h"

#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

using Cells = base::ListView::Cells;

struct RowCase {
  Cells row;
  store::DrawRecord record;
};

TEST(DrawLists, ARowIsWrittenAsTheBoxesWouldShowIt) {
  const RowCase cases[] = {
      {{"01", "02", "03", "04", "05", "06", "07", "05/12/05", "Sa"}, Draw({1, 2, 3, 4, 5, 6, 7})},
      {{"1", "2", "3", "4", "5", "6", "", "05/12/05", "Saturday"}, Draw({1, 2, 3, 4, 5, 6, 0})},
      {{"1", "2", "3", "4", "5", "6", "7", "5/12", "w"}, Draw({1, 2, 3, 4, 5, 6, 7}, "We", "5/12")},
      {{"123", "2", "3", "4", "5", "6", "7", "05/12/05", "xx"},
       [] {
         store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "xx");
         draw.b[0] = "123";
         return draw;
       }()},
      // No box can show these balls.
      {{"01x", "2", "3", "4", "5", "6", "7", "05/12/05", "sa"},
       [] {
         store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7});
         draw.b[0] = "01x";
         return draw;
       }()},
      {{"256", "2", "3", "4", "5", "6", "7", "05/12/05", "Sa"},
       [] {
         store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7});
         draw.b[0] = "256";
         return draw;
       }()},
  };
  for (const RowCase& row : cases) {
    EXPECT_EQ(main_window::RecordOfRow(row.row), row.record) << row.row[0] << " " << row.row[8];
  }
}

TEST(DrawLists, TellsWhatIsPending) {
  store::PendingRows pending;
  EXPECT_EQ(main_window::PendingText(pending), "");
  pending[3] = std::nullopt;
  EXPECT_EQ(main_window::PendingText(pending), "1 removal");
  pending[5] = std::nullopt;
  EXPECT_EQ(main_window::PendingText(pending), "2 removals");
  pending[7] = Cells{"01"};
  EXPECT_EQ(main_window::PendingText(pending), "3 changes");
  pending = {{7, Cells{"01"}}};
  EXPECT_EQ(main_window::PendingText(pending), "1 change");
}

TEST(DrawLists, AreFilledFromTheFileAndWhatIsPending) {
  TestDesk desk;
  desk.Start();
  Cells changed = main_window::TableRow(SampleDraws(8)[7]);
  changed[0] = "49";
  desk.Session().database.pending = {{3, std::nullopt}, {8, changed}};
  main_window::FillLists(desk.Session(), desk.Main());
  EXPECT_EQ(desk.Main().List7.ListCount(), 40);
  EXPECT_EQ(desk.Main().List7.Row(2), store::DrawLine(SampleDraws(3)[2]));
  EXPECT_EQ(desk.Main().List7.Key(2), 3);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 39);
  EXPECT_EQ(desk.Main().ListView1.Key(3), 4);
  EXPECT_EQ(desk.Main().ListView1.Row(7), changed);
}

}  // namespace
}  // namespace test
