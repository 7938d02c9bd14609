#include "main/entry.h"

#include <gtest/gtest.h>

#include <functional>

#include "base/language/error.h"
#include "main/draw_lists.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

void StartQuietly(TestDesk& desk) {
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
}

void TypeDraw(TestDesk& desk, std::initializer_list<const char*> balls, const char* bonus,
              const char* day, const char* date) {
  desk.User().Click(desk.Main().cmdAdd);
  int k = 0;
  for (const char* ball : balls) desk.Main().BallBox(k++).SetText(ball);
  desk.Main().TxtBallBB.SetText(bonus);
  desk.Main().TxtBall07.SetText(day);
  desk.Main().txtDate.SetText(date);
}

std::string LastRecord(const TestDesk& desk) { return desk.DatabaseBytes().substr(40 * 44); }

TEST(Entry, AddingClearsTheBoxesAndTellsTheLastEntry) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdAdd);
  ASSERT_EQ(desk.boxes.shown.size(), 1u);
  EXPECT_EQ(desk.boxes.shown[0].text,
            "Tip: You may paste one line of numbers including the date into field B1\r\n"
            "You may use the reset button to cancel the Add action at any time");
  EXPECT_EQ(desk.Main().lblProductName1(4).Caption(), "The last entry was on Wed the 12/02/00");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "");
  EXPECT_EQ(desk.Main().txtDate.Text(), "");
  EXPECT_EQ(desk.Session().current_draw_number, 41);
  EXPECT_EQ(desk.Session().draw_count, 40);
  EXPECT_FALSE(desk.Main().CmdScan.Enabled());
  EXPECT_FALSE(desk.Main().cmdFirst.Enabled());
  EXPECT_TRUE(desk.Main().cmdSave.Enabled());
  EXPECT_TRUE(desk.Main().CmdReset.Enabled());
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Main().TxtBall01);
}

TEST(Entry, SavesADrawInAscendingOrder) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"07", "03", "12", "20", "30", "40"}, "", "sa", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(LastRecord(desk), store::EncodeRecord(Draw({3, 7, 12, 20, 30, 40}, "Sa")));
  EXPECT_EQ(desk.Main().List7.Row(40), "03 07 12 20 30 40 00 05/12/05 0 Sa");
  EXPECT_EQ(desk.Main().List7.ListIndex(), 40);
  EXPECT_EQ(desk.Main().ListView1.Cell(41, 8), "Sa");
  EXPECT_EQ(desk.Session().UpperBound(), 41);
  EXPECT_EQ(desk.Session().current_draw_number, 41);
  EXPECT_EQ(desk.Main().TxtStartDrawAt(0).Text(), "41");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "3");
}

TEST(Entry, KeepsAnEmptySlotWhereItWasTyped) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"40", "12", "00", "31", "22", "05"}, "09", "Mo", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(LastRecord(desk), store::EncodeRecord(Draw({12, 40, 0, 5, 22, 31, 9}, "Mo")));
}

TEST(Entry, OneDigitIsStoredAsTwo) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"1", "2", "3", "4", "5", "6"}, "7", "xx", "5/12");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(LastRecord(desk), store::EncodeRecord(Draw({1, 2, 3, 4, 5, 6, 7}, "xx", "5/12")));
}

struct Refusal {
  std::initializer_list<const char*> balls;
  const char* day;
  const char* date;
  const char* text;
};

TEST(Entry, RefusesWhatIsNoDrawAndWritesNothing) {
  const Refusal refusals[] = {
      {{"01", "02", "", "04", "05", "06"},
       "Sa",
       "05/12/05",
       "Please type a number into textbox B3"},
      {{"01", "02", "03", "04", "05", "123"}, "Sa", "05/12/05", "Value to high do not exceed 99"},
      {{"01", "02", "03", "04", "05", "06"}, "", "05/12/05", "Please type the day of the draw"},
      {{"01", "02", "03", "04", "05", "06"},
       "Sa",
       "",
       "Please type the draw date into the date field."},
      {{"01", "02", "03", "04", "05", "06"},
       "Sa",
       "05/12/200",
       "Date field is incorrect please enter in this format 00/00/00"},
  };
  for (const Refusal& refusal : refusals) {
    TestDesk desk;
    StartQuietly(desk);
    const std::string before = desk.DatabaseBytes();
    TypeDraw(desk, refusal.balls, "07", refusal.day, refusal.date);
    desk.User().Click(desk.Main().cmdSave);
    EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>{refusal.text});
    EXPECT_EQ(desk.DatabaseBytes(), before);
  }
}

TEST(Entry, LeavesTheFocusInTheBoxAtFault) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"01", "02", "", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Main().TxtBall03);
}

TEST(Entry, TheSecondDigitMovesOn) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Type(desk.Main().TxtBall01, "0312x9 7{Enter}41");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "03");
  EXPECT_EQ(desk.Main().TxtBall02.Text(), "12");
  EXPECT_EQ(desk.Main().TxtBall03.Text(), "9");
  EXPECT_EQ(desk.Main().TxtBall04.Text(), "7");
  EXPECT_EQ(desk.Main().TxtBall05.Text(), "41");
  EXPECT_EQ(desk.Desk().Desktop().Focused(), &desk.Main().TxtBall06);
  EXPECT_EQ(desk.Main().TxtBall06.BackColor(), 0xFFFFC0u);
  EXPECT_EQ(desk.Main().TxtBall05.BackColor(), 0xFFFFFFu);
}

TEST(Entry, TheDayBoxFillsItselfFromTheDate) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.Main().txtDate.SetText("05/12/2005");
  desk.User().Focus(desk.Main().TxtBall07);
  EXPECT_EQ(desk.Main().txtDate.Text(), "12/05/05");
  EXPECT_EQ(desk.Main().TxtBall07.Text(), "Mon");
}

TEST(Entry, ResetLeavesIt) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Click(desk.Main().CmdReset);
  EXPECT_TRUE(desk.Main().cmdAdd.Enabled());
  EXPECT_TRUE(desk.Main().CmdScan.Enabled());
  EXPECT_FALSE(desk.Main().CmdReset.Enabled());
  EXPECT_FALSE(desk.Main().cmdSave.Enabled());
  EXPECT_EQ(desk.Main().lblProductName1(4).Caption(), "Quorbit Number Desk");
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 1);
}

TEST(Entry, EditsTheDrawChosenInTheLineList) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Pick(desk.Main().List7, 4);
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_EQ(desk.Main().cmdedit.Caption(), "Save");
  desk.Main().TxtBall01.SetText("9");
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_EQ(desk.Main().cmdedit.Caption(), "Edit");
  auto expected = SampleDraws(40);
  expected[4].b[0] = "09";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  EXPECT_EQ(desk.Main().ListView1.Cell(5, 0), "09");
  EXPECT_TRUE(desk.Main().List7.Enabled());
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// The number on show counts rows from 0, and the edit went to the draw before.
TEST(Entry, AnEditThroughTheTableReplacesTheDrawOnShow) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall01.SetText("9");
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_EQ(desk.Session().selected_list_row, 40);
  auto expected = SampleDraws(40);
  expected[4].b[0] = "09";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(Entry, AnEditWithAShortDateStops) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Pick(desk.Main().List7, 4);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().txtDate.SetText("5/12");
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"Please check the date is in this format 00/00/00"});
  EXPECT_FALSE(desk.Main().List7.Enabled());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(Entry, PastesALineOfResults) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Paste(desk.Main().TxtBall01, "Mon 05/12/2005, 3, 12, 19, 27, 35, 41, 8");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "3");
  EXPECT_EQ(desk.Main().TxtBallBB.Text(), "8");
  EXPECT_EQ(desk.Main().txtDate.Text(), "12/05/05");
  EXPECT_EQ(desk.Main().TxtBall07.Text(), "Mon");
}

TEST(Entry, APasteEndsWithItsFirstLine) {
  TestDesk desk;
  desk.Start();
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Paste(desk.Main().TxtBall01,
                    "12/05/05 1 2 3 4 5 6 7\r\n19/05/05 8 9 10 11 12 13 14\r\n");
  EXPECT_EQ(desk.Main().TxtBallBB.Text(), "7");
  EXPECT_EQ(desk.Main().TxtBall06.Text(), "6");
}

// The last draw may have fewer balls than the one that is being added.
TEST(Entry, AddingEnablesEveryBallBox) {
  std::vector<store::DrawRecord> draws(3, Draw({1, 2, 3, 4, 5, 6, 7}));
  draws.push_back(Draw({1, 2, 3, 4, 5}));
  TestDesk desk(draws);
  desk.Start();
  desk.User().Click(desk.Main().cmdAdd);
  EXPECT_TRUE(desk.Main().TxtBall06.Enabled());
  EXPECT_TRUE(desk.Main().TxtBallBB.Enabled());
  EXPECT_TRUE(desk.Main().Label7(7).Enabled());
  EXPECT_TRUE(desk.Main().Label7(5).Enabled());
}

TEST(Entry, APasteWithoutAPlaceForTheBallsHoldsZeros) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Paste(desk.Main().TxtBall01, "1 2 3 05/12/2005 4");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "00");
  EXPECT_EQ(desk.Main().TxtBallBB.Text(), "00");
  EXPECT_EQ(desk.Main().txtDate.Text(), "12/05/05");
}

TEST(Entry, AFailedAppendLeavesTheFileAndTellsTheUser) {
  TestDesk desk;
  desk.settings.Save("velmonte", "390", "Tips", "False");
  FailingDisk disk(desk.host_files);
  desk.files = &disk;
  desk.Start();
  TypeDraw(desk, {"01", "02", "03", "04", "05", "06"}, "07", "Sa", "05/12/05");
  disk.FailFromNow(1, base::Error(base::kDiskFull));
  desk.User().Click(desk.Main().cmdSave);
  const auto texts = desk.TakeBoxTexts();
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_NE(texts[0].find("illigal operation at SaveNewRecord"), std::string::npos);
  EXPECT_NE(texts[0].find("Error Number [61] "), std::string::npos);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
}

TEST(Entry, KnowsTheDaysInTheirSpellings) {
  for (const char* text : {"Mo", "mo", "MO", "Monday"})
    EXPECT_EQ(main_window::TwoLetterDay(text), "Mo");
  EXPECT_EQ(main_window::TwoLetterDay("mO"), "mO");
  EXPECT_EQ(main_window::TwoLetterDay("Feiertag"), "Feiertag");
  EXPECT_EQ(main_window::ShortDay("Monday"), "Mon");
  EXPECT_EQ(main_window::ShortDay("w"), "Wed");
  EXPECT_EQ(main_window::ShortDay("t"), "t");
  EXPECT_EQ(main_window::ShortDay("TU"), "TU");
}

// After a removal the table has a row less than there are lines: an edit went to the wrong row, and
// the close lost a draw.
TEST(Entry, AnEditAfterARemovalFindsItsRow) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Click(desk.Main().Command18);
  desk.User().Pick(desk.Main().List7, 9);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("49");
  desk.User().Click(desk.Main().cmdedit);
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected[9].b[5] = "49";
  expected.erase(expected.begin() + 4);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// A full disk left the lines in Temp.dat, and the next edit put them in front of all draws. When
// the database could not be read again, the next edit wrote over another draw.
TEST(Entry, AFailedEditDoesNotDoubleTheNextOne) {
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk;
    desk.settings.Save("velmonte", "390", "Tips", "False");
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    desk.Start();
    const auto edit = [&](int line, const char* ball) {
      desk.User().Pick(desk.Main().List7, line);
      desk.User().Click(desk.Main().cmdedit);
      desk.Main().TxtBall06.SetText(ball);
      desk.User().Click(desk.Main().cmdedit);
    };
    auto expected = SampleDraws(40);
    disk.FailFromNow(failing, base::Error(base::kDiskFull));
    edit(4, "98");
    const bool failed = disk.HasFailed();
    if (desk.TakeBoxTexts().empty()) expected[4].b[5] = "98";
    if (!failed) {
      EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
      EXPECT_GT(failing, 1) << "no operation was reached";
      return;
    }
    // What was told was not done, then or later.
    edit(6, "99");
    if (desk.TakeBoxTexts().empty()) expected[6].b[5] = "99";
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  }
}

TEST(Entry, EditsTheFirstDrawThroughTheTable) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Pick(desk.Main().ListView1, 1);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("49");
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_TRUE(desk.boxes.shown.empty());
  auto expected = SampleDraws(40);
  expected[0].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(Entry, ARefusedSaveLeavesTheButtonsAsTheyStood) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"01", "02", "", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_TRUE(desk.Main().CmdReset.Enabled());
  EXPECT_FALSE(desk.Main().cmdAdd.Enabled());
  EXPECT_TRUE(desk.Main().cmdSave.Enabled());
}

TEST(Entry, WhileAddingThereIsNoDrawToEditOrRemove) {
  TestDesk desk;
  StartQuietly(desk);
  EXPECT_TRUE(desk.Main().cmdedit.Enabled());
  EXPECT_TRUE(desk.Main().Command18.Enabled());
  desk.User().Click(desk.Main().cmdAdd);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.User().Click(desk.Main().CmdReset);
  EXPECT_TRUE(desk.Main().cmdedit.Enabled());
  EXPECT_TRUE(desk.Main().Command18.Enabled());
}

// What is typed then may stand over the draw that was looked at.
TEST(Entry, ADrawLookedAtWhileAddingCannotBeRemoved) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Pick(desk.Main().ListView1, 4);
  EXPECT_TRUE(desk.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.User().Click(desk.Main().cmdedit);
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_TRUE(desk.Main().Command18.Enabled());
}

TEST(Entry, WhileEditingNothingCanBeRemoved) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_TRUE(desk.Main().Command18.Enabled());
}

// Edit, Next, Save: the boxes held the next draw by then, and it was stored in place of the first.
TEST(Entry, MovingToAnotherDrawGivesUpAnEdit) {
  TestDesk desk;
  StartQuietly(desk);
  for (const auto& move :
       std::vector<std::function<void()>>{[&] { desk.User().Click(desk.Main().cmdNext); },
                                          [&] { desk.User().Pick(desk.Main().List7, 6); },
                                          [&] { desk.User().Pick(desk.Main().ListView1, 3); },
                                          [&] { desk.User().Click(desk.Main().cmdAdd); }}) {
    desk.User().Click(desk.Main().CmdReset.Enabled() ? desk.Main().CmdReset : desk.Main().cmdFirst);
    desk.User().Click(desk.Main().cmdedit);
    ASSERT_EQ(desk.Main().cmdedit.Caption(), "Save");
    move();
    EXPECT_EQ(desk.Main().cmdedit.Caption(), "Edit");
    EXPECT_FALSE(desk.Main().tbar3.Enabled());
  }
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(Entry, ASavedDrawIsTheSelectedRow) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"01", "02", "03", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 41);
  EXPECT_EQ(desk.Session().selected_list_row, 40);
  desk.User().Click(desk.Main().Command18);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

// A click on a line while the save yielded put another draw into the boxes, and that was stored.
TEST(Entry, ASaveTakesItsBoxesBeforeItYields) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"01", "02", "03", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.pump.At(1, [&] { desk.User().Pick(desk.Main().List7, 3); });
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(LastRecord(desk), store::EncodeRecord(Draw({1, 2, 3, 4, 5, 6, 7})));
}

TEST(Entry, ASecondClickOnSaveInItsYieldSavesNothing) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, {"01", "02", "03", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.pump.At(1, [&] { desk.User().Click(desk.Main().cmdSave); });
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(LastRecord(desk), store::EncodeRecord(Draw({1, 2, 3, 4, 5, 6, 7})));
}

// While adding a row was clicked, to look something up; Save then stored that draw once more.
TEST(Entry, ADrawThatStandsInTheFileIsNotSavedAgain) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(desk.TakeBoxTexts(),
            std::vector<std::string>{"This draw is in the database already, nothing was saved"});
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  desk.Main().TxtBall01.SetText("49");
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(desk.DatabaseBytes().size(), 41u * 44);
}

// An edit that failed stayed in the lines and the table, and the close wrote it after all.
TEST(Entry, AFailedEditIsTakenBackEverywhere) {
  for (int failing = 1;; ++failing) {
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    StartQuietly(desk);
    desk.User().Pick(desk.Main().List7, 4);
    desk.User().Click(desk.Main().cmdedit);
    desk.Main().TxtBall06.SetText("99");
    disk.FailFromNow(failing, base::Error(base::kDiskFull));
    desk.User().Click(desk.Main().cmdedit);
    if (!disk.HasFailed()) {
      EXPECT_GT(failing, 3);
      break;
    }
    const bool told = !desk.TakeBoxTexts().empty();
    auto expected = SampleDraws(40);
    if (!told) expected[4].b[5] = "99";
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected)) << "operation " << failing;
    EXPECT_TRUE(!told || desk.Main().TxtBall06.Text() == "99");
    EXPECT_EQ(desk.Main().List7.Row(4).substr(15, 2), expected[4].b[5]);
    EXPECT_EQ(desk.Main().ListView1.Cell(5, 5), expected[4].b[5]);
    disk.FailFromNow(1000000, base::Error(base::kDiskFull));
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), Encode(expected)) << "operation " << failing;
  }
}

TEST(Entry, EditsAFullDatabase) {
  TestDesk desk(SampleDraws(32767));
  StartQuietly(desk);
  desk.User().Pick(desk.Main().List7, 32766);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("99");
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_TRUE(desk.boxes.shown.empty());
  auto expected = SampleDraws(32767);
  expected.back().b[5] = "99";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(Entry, TheFirstDrawOfADatabaseStandsAlone) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  StartQuietly(desk);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  TypeDraw(desk, {"01", "02", "03", "04", "05", "06"}, "07", "Sa", "05/12/05");
  desk.User().Click(desk.Main().cmdSave);
  const std::string first = store::EncodeRecord(Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(desk.DatabaseBytes(), first);
  EXPECT_EQ(desk.Main().List7.ListCount(), 2);
  EXPECT_EQ(desk.Session().database.Positions(), (std::vector<std::int32_t>{0, 1, 1}));
  desk.User().Pick(desk.Main().List7, 1);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("49");
  desk.User().Click(desk.Main().cmdedit);
  const std::string edited = store::EncodeRecord(Draw({1, 2, 3, 4, 5, 49, 7}));
  EXPECT_EQ(desk.DatabaseBytes(), edited);
  EXPECT_EQ(desk.Session().database.Positions(), (std::vector<std::int32_t>{0, 1, 1}));
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), edited);
  EXPECT_TRUE(desk.boxes.shown.empty());
}

}  // namespace
}  // namespace test
