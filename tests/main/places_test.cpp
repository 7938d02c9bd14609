// A change means the draw that the person sees, wherever its row and its record have come to.

#include <gtest/gtest.h>

#include <filesystem>

#include "support/test_desk.h"

namespace test {
namespace {

using Draws = std::vector<store::DrawRecord>;

void StartQuietly(TestDesk& desk) {
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
}

Draws Without(Draws draws, std::initializer_list<int> places) {
  int gone = 0;
  for (const int place : places) draws.erase(draws.begin() + (place - 1 - gone++));
  return draws;
}

void Remove(TestDesk& desk, int row) {
  desk.User().Pick(desk.Main().ListView1, row);
  desk.User().Click(desk.Main().Command18);
}

// Another sixth ball for the draw on show.
void Edit(TestDesk& desk, const std::string& ball) {
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText(ball);
  desk.User().Click(desk.Main().cmdedit);
}

void Add(TestDesk& desk, const store::DrawRecord& draw) {
  desk.User().Click(desk.Main().cmdAdd);
  for (int k = 0; k < store::kBalls; ++k) desk.Main().BallBox(k).SetText(draw.Ball(k));
  desk.Main().TxtBall07.SetText(draw.day);
  desk.Main().txtDate.SetText(draw.date);
  desk.User().Click(desk.Main().cmdSave);
}

void Switch(TestDesk& desk) { desk.User().Switch(desk.Main()); }

void OpenEditor(TestDesk& desk, int row, const std::string& first_ball) {
  desk.User().Pick(desk.Main().ListView1, row);
  desk.User().DoubleClick(desk.Main().ListView1);
  desk.Main().TxtChange(0).SetText(first_ball);
}

TEST(RowEditorPlace, FollowsItsDrawWhenPendingRowsAreStored) {
  TestDesk desk;
  StartQuietly(desk);
  Remove(desk, 2);
  OpenEditor(desk, 4, "49");
  desk.Desk().StorePending();
  EXPECT_TRUE(desk.Main().Picture6.Visible());
  desk.User().Click(desk.Main().Label18);
  desk.Desk().Stop();
  Draws expected = SampleDraws(40);
  expected[4].b[0] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(Without(expected, {2})));
}

TEST(RowEditorPlace, IsGivenUpByAnUndoThatChangesTheFile) {
  TestDesk desk;
  StartQuietly(desk);
  Remove(desk, 2);
  desk.Desk().StorePending();
  OpenEditor(desk, 5, "49");
  EXPECT_EQ(desk.Desk().Undo(), "Undone: Draw of 02/01/00 removed");
  EXPECT_FALSE(desk.Main().Picture6.Visible());
  desk.User().Click(desk.Main().Label18);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(RowEditorPlace, FollowsItsDrawWhenTheBlankRowGoes) {
  TestDesk desk(Draws{});
  StartQuietly(desk);
  const Draws draws = SampleDraws(2);
  for (const store::DrawRecord& draw : draws) Add(desk, draw);
  OpenEditor(desk, 2, "49");
  Switch(desk);
  desk.User().Click(desk.Main().Label18);
  desk.Desk().Stop();
  Draws expected = draws;
  expected[0].b[0] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(RowEditorPlace, IsGivenUpWhenAnotherFileIsLoaded) {
  TestDesk desk;
  StartQuietly(desk);
  OpenEditor(desk, 4, "49");
  const Draws foreign = Without(SampleDraws(40), {1});
  desk.WriteDatabase(Encode(foreign));
  desk.boxes.answers = {base::Answer::kYes};
  Add(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_FALSE(desk.Main().Picture6.Visible());
  desk.User().Click(desk.Main().Label18);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(foreign));
}

TEST(RowEditorPlace, ADoubleClickOnAnEmptiedTableDoesNothing) {
  TestDesk desk(SampleDraws(1));
  StartQuietly(desk);
  Remove(desk, 1);
  desk.User().DoubleClick(desk.Main().ListView1);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_FALSE(desk.Main().Picture6.Visible());
}

// The boxes kept the balls from before a correction in the table, and the next edit wrote them
// back.
TEST(RowEditorPlace, TheBoxesShowWhatItWasGiven) {
  TestDesk desk;
  StartQuietly(desk);
  OpenEditor(desk, 4, "49");
  desk.User().Click(desk.Main().Label18);
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "49");
  Edit(desk, "48");
  desk.Desk().Stop();
  Draws expected = SampleDraws(40);
  expected[3].b[0] = "49";
  expected[3].b[5] = "48";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(BlankRow, DoesNotShiftAnEditBehindAStore) {
  TestDesk desk(Draws{});
  StartQuietly(desk);
  const Draws draws = SampleDraws(3);
  for (const store::DrawRecord& draw : draws) Add(desk, draw);
  Remove(desk, 1);  // the blank row
  Remove(desk, 1);
  desk.User().Pick(desk.Main().ListView1, 2);
  desk.Desk().StorePending();
  Edit(desk, "49");
  desk.Desk().Stop();
  Draws expected = Without(draws, {1});
  expected[1].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(BlankRow, OfAnEmptiedFileDoesNotShiftWhatIsTakenBack) {
  TestDesk desk(SampleDraws(2));
  StartQuietly(desk);
  OpenEditor(desk, 2, "49");
  desk.User().Click(desk.Main().Label18);
  Remove(desk, 1);
  Remove(desk, 1);
  desk.Desk().StorePending();
  EXPECT_EQ(desk.DatabaseBytes(), "");
  desk.Desk().Undo();
  desk.Desk().Undo();
  desk.Desk().Stop();
  Draws expected = SampleDraws(2);
  expected[1].b[0] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(BlankRow, ThatHasGoneDoesNotShiftWhatIsTakenBack) {
  TestDesk desk(Draws{});
  StartQuietly(desk);
  const Draws draws = SampleDraws(4);
  for (int i = 0; i < 3; ++i) Add(desk, draws[static_cast<std::size_t>(i)]);
  Remove(desk, 2);
  Remove(desk, 2);
  desk.Desk().StorePending();
  Add(desk, draws[3]);
  Switch(desk);
  desk.Desk().Undo();
  EXPECT_EQ(desk.Desk().Undo(), "Undone: Draw of 02/01/00 removed");
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode({draws[1], draws[2]}));
}

TEST(DrawOnShow, ARowThatNoBoxCanShowIsNotMixedWithAnother) {
  Draws draws = SampleDraws(40);
  draws[2].b[2] = "XX";
  TestDesk desk(draws);
  StartQuietly(desk);
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Pick(desk.Main().ListView1, 3);
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  EXPECT_EQ(desk.Session().current_balls[0], std::stoi(draws[4].b[0]));
  desk.User().Click(desk.Main().Command18);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(Without(draws, {3})));
}

TEST(DrawOnShow, IsNoneWhereARecordCannotBeShown) {
  Draws draws = SampleDraws(40);
  draws[2].b[2] = "XX";
  TestDesk desk(draws);
  StartQuietly(desk);
  desk.User().Pick(desk.Main().ListView1, 5);
  desk.User().Pick(desk.Main().List7, 2);
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
}

// Both Save buttons could be pressed, and the other one added what was corrected as a new draw.
TEST(DrawOnShow, AnEditOfADrawLookedAtWhileAddingEndsTheAdding) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Click(desk.Main().cmdAdd);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.User().Pick(desk.Main().ListView1, 3);
  desk.User().Click(desk.Main().cmdedit);
  for (base::Button* button :
       {&desk.Main().cmdSave, &desk.Main().cmdClear, &desk.Main().CmdReset}) {
    EXPECT_FALSE(button->Enabled()) << button->Name();
  }
  EXPECT_TRUE(desk.Main().cmdNext.Enabled());
  EXPECT_TRUE(desk.Main().CmdScan.Enabled());
  EXPECT_FALSE(desk.Main().Command18.Enabled());
  desk.Main().TxtBall06.SetText("49");
  desk.User().Click(desk.Main().cmdedit);
  Draws expected = SampleDraws(40);
  expected[2].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(Places, AreNotChangedUnderAScan) {
  TestDesk desk;
  StartQuietly(desk);
  Remove(desk, 3);
  desk.User().Click(desk.Main().cmdFirst);
  desk.pump.At(20, [&] { desk.Desk().StorePending(); });
  desk.User().Click(desk.Main().CmdScan);
  EXPECT_EQ(desk.Session().scan_tally, 39);  // as many as the table has rows
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  desk.Desk().StorePending();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(Without(SampleDraws(40), {3})));
}

TEST(Places, OnAScreenAnActivationForgetsNothing) {
  for (const int draws : {20, 40}) {
    TestDesk desk(SampleDraws(draws));
    desk.settings.Save("velmonte", "390", "Tips", "False");
    desk.Start();
    desk.Session().keeps_pending = true;
    Remove(desk, 3);
    Switch(desk);
    EXPECT_EQ(desk.Main().ListView1.RowCount(), draws - 1);
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), Encode(Without(SampleDraws(draws), {3})));
  }
}

TEST(OwnRows, AreKeptAlsoBehindAnActivationOfASmallDatabase) {
  TestDesk desk(SampleDraws(20));
  StartQuietly(desk);
  desk.WriteDatabase(Encode(SampleDraws(5)));
  desk.boxes.answers = {base::Answer::kNo};
  Edit(desk, "49");
  Switch(desk);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(5)));
  EXPECT_EQ(desk.ReadFile("DataBases/UK-National-Lottery own 2000-01-01 00-00-00.dat"),
            Encode(SampleDraws(20)));
}

// The blank row was removed in the yield of Add; the table without a row was loaded again behind
// the save, and the draw stood in it twice. The next edit wrote it twice.
TEST(BlankRow, ADrawSavedIntoATableWithoutARowStandsThereOnce) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  StartQuietly(desk);
  desk.pump.At(1, [&] { desk.User().Click(desk.Main().Command18); });
  Add(desk, SampleDraws(1)[0]);
  EXPECT_EQ(desk.Main().List7.ListCount(), 1);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 1);
  Edit(desk, "49");
  desk.Desk().Stop();
  auto expected = SampleDraws(1);
  expected[0].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// What only the desk still knew went with the press of Yes.
TEST(OwnRows, OfAFileThatWasCutAreAnEarlierStateBeforeItIsLoaded) {
  TestDesk desk;
  StartQuietly(desk);
  desk.WriteDatabase("");
  desk.boxes.answers = {base::Answer::kYes};
  Edit(desk, "49");
  ASSERT_EQ(desk.Desk().Earlier(),
            std::vector<std::string>{"UK-National-Lottery 2000-01-01 00-00-00.dat"});
  EXPECT_EQ(desk.ReadFile("DataBases/Earlier/UK-National-Lottery 2000-01-01 00-00-00.dat"),
            Encode(SampleDraws(40)));
}

TEST(OwnRows, OfAFileThatOnlyGrewAreNoEarlierState) {
  TestDesk desk;
  StartQuietly(desk);
  desk.WriteDatabase(Encode(SampleDraws(41)));
  desk.boxes.answers = {base::Answer::kYes};
  Edit(desk, "49");
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 41);
  EXPECT_EQ(desk.Desk().Earlier(), std::vector<std::string>());
}

TEST(OwnRows, AreKeptOnceAndNotBehindTheNextWindow) {
  TestDesk desk;
  StartQuietly(desk);
  desk.WriteDatabase(Encode(SampleDraws(39)));
  desk.boxes.answers = {base::Answer::kNo};
  Edit(desk, "49");
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.TakeBoxTexts().size(), 2u);
  desk.User().Choose(desk.Frame().MnuMainWindow);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 39);
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
}

// Each rewrite goes into the state that the link leads to: it is the database.
TEST(OpenDatabase, ALinkToAnEarlierStateStaysWhileStatesGo) {
  TestDesk desk;
  const auto folder = desk.folder / "DataBases";
  std::filesystem::create_directory(folder / "Earlier");
  const std::string state = "UK-National-Lottery 1990-01-01 00-00-00.dat";
  std::filesystem::rename(folder / desk.database, folder / "Earlier" / state);
  std::filesystem::create_hard_link(folder / "Earlier" / state, folder / "another name");
  std::filesystem::create_symlink("Earlier/" + state, folder / desk.database);
  StartQuietly(desk);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  for (int ball = 50; ball < 75; ++ball) Edit(desk, std::to_string(ball).c_str());
  desk.Desk().Stop();
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  EXPECT_TRUE(std::filesystem::is_symlink(folder / desk.database));
  EXPECT_NE(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  EXPECT_EQ(desk.DatabaseBytes().size(), Encode(SampleDraws(40)).size());
}

TEST(OpenDatabase, ALinkToAnEarlierStateStays) {
  TestDesk desk;
  const auto folder = desk.folder / "DataBases";
  std::filesystem::create_directory(folder / "Earlier");
  const std::string state = "UK-National-Lottery 2000-01-01 00-00-00.dat";
  std::filesystem::rename(folder / desk.database, folder / "Earlier" / state);
  std::filesystem::create_symlink("Earlier/" + state, folder / desk.database);
  StartQuietly(desk);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

// A desk that may only read made the file anew, empty, and the other one loaded that.
TEST(OpenDatabase, WithoutTheLockNoFileIsMade) {
  TestDesk desk;
  base::LockAttempt other =
      desk.host_files.TryLock((desk.folder / "DataBases/.UK-National-Lottery.lock").string());
  ASSERT_TRUE(other.lock);
  std::filesystem::remove(desk.folder / "DataBases" / desk.database);
  StartQuietly(desk);
  EXPECT_FALSE(std::filesystem::exists(desk.folder / "DataBases" / desk.database));
  EXPECT_FALSE(desk.Main().cmdAdd.Enabled());
  desk.Desk().Stop();
}

// A scan in a yield of the load leaves the window without a draw, and Add could be pressed there.
TEST(Places, NothingCanBeChangedBeforeTheFirstLoad) {
  TestDesk desk;
  StartQuietly(desk);
  desk.User().Close(desk.Main());
  desk.pump.At(1, [&] { desk.User().Click(desk.Main().CmdScan); });
  desk.User().Choose(desk.Frame().MnuMainWindow);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 0);
  EXPECT_FALSE(desk.Main().cmdAdd.Enabled());
  EXPECT_NE(desk.Main().cmdAdd.ToolTipText(), "");
  desk.User().Close(desk.Main());
  desk.User().Choose(desk.Frame().MnuMainWindow);
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
  EXPECT_TRUE(desk.Main().cmdAdd.Enabled());
  EXPECT_EQ(desk.Main().cmdAdd.ToolTipText(), "");
}

TEST(OpenDatabase, ANameWithAZeroByteIsNone) {
  TestDesk desk;
  desk.settings.Save("Velmonte", "Data", "DataBaseName",
                     std::string("UK-National-Lottery.dat\0x", 25));
  StartQuietly(desk);
  EXPECT_EQ(desk.boxes.shown.front().text,
            "Database could not be found\r\nPlease load a database from the database window");
  EXPECT_FALSE(desk.Main().cmdAdd.Enabled());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

}  // namespace
}  // namespace test
