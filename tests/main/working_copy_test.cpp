#include "main/working_copy.h"

#include <gtest/gtest.h>

#include "base/language/error.h"
#include "support/desk_acts.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

std::vector<store::DrawRecord> Without(std::vector<store::DrawRecord> draws, int place) {
  draws.erase(draws.begin() + (place - 1));
  return draws;
}

TEST(WorkingCopy, AnEditLeavesTheIndexAndTheListsInStep) {
  TestDesk desk;
  StartQuietly(desk);
  EditDraw(desk, 2, "49");
  auto expected = SampleDraws(40);
  expected[1].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  EXPECT_EQ(desk.Session().UpperBound(), 40);
  EXPECT_EQ(desk.Session().data_base_name, "");
  EXPECT_EQ(desk.Session().temp_path, "");
  EXPECT_TRUE(desk.Main().List7.Enabled());
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 40);
  EXPECT_EQ(desk.Main().List7.Key(1), 2);
}

TEST(WorkingCopy, TempPathIsKnownWhileAnEditRuns) {
  TestDesk desk;
  StartQuietly(desk);
  std::string path;
  desk.User().Pick(desk.Main().List7, 1);
  desk.User().Click(desk.Main().cmdedit);
  desk.pump.At(3, [&] { path = desk.Session().temp_path; });
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_EQ(path, desk.folder.string() + "\\Temp.dat");
}

// Whose draws a Temp.dat holds nobody knows: they went into the next database
// that was edited.
TEST(WorkingCopy, ATempDatThatIsFoundIsSetAside) {
  TestDesk desk;
  StartQuietly(desk);
  const std::string found = Encode(SampleDraws(2));
  desk.host_files.Replace(desk.folder.string() + "/Temp.dat", found);
  desk.host_files.Replace(desk.folder.string() + "/Temp.dat.old", "old");
  EditDraw(desk, 2, "49");
  auto expected = SampleDraws(40);
  expected[1].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  EXPECT_FALSE(std::filesystem::exists(desk.folder / "Temp.dat"));
  EXPECT_EQ(desk.ReadFile("Temp.dat.old"), "old");
  EXPECT_EQ(desk.ReadFile("Temp.dat.old2"), found);
}

TEST(WorkingCopy, ATempDatThatIsALinkIsNotFollowed) {
  TestDesk desk;
  StartQuietly(desk);
  desk.host_files.Replace(desk.folder.string() + "/victim", "precious");
  std::filesystem::create_symlink("victim", desk.folder / "Temp.dat");
  EditDraw(desk, 2, "49");
  EXPECT_EQ(desk.ReadFile("victim"), "precious");
  EXPECT_TRUE(std::filesystem::is_symlink(desk.folder / "Temp.dat.old"));
}

TEST(WorkingCopy, CloseRewritesFromTheTableAfterAChange) {
  TestDesk desk;
  desk.Start();
  RemoveRow(desk, 2);
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(Without(SampleDraws(40), 2)));
  EXPECT_EQ(desk.Session().database.Length(), 39 * 44);
  EXPECT_EQ(desk.Session().UpperBound(), 39);
  EXPECT_EQ(desk.Session().draw_count, 39);
  EXPECT_EQ(desk.Session().current_draw_number, 40);
  EXPECT_EQ(desk.Session().file_pos, 38 * 44 + 1);
  EXPECT_EQ(desk.Session().current_draw, SampleDraws(40)[39]);
  EXPECT_FALSE(desk.Session().main_window_loaded);
  EXPECT_FALSE(desk.Frame().Command17.Enabled());
  EXPECT_EQ(desk.Frame().Command17.BackColor(), 0xC0C0C0u);
}

TEST(WorkingCopy, CloseWithoutAChangeWritesNothing) {
  TestDesk desk;
  desk.Start();
  RemoveRow(desk, 2);
  desk.Session().data_base_changed = false;
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

// A table that lost rows in any other way than by hand is none to write from.
TEST(WorkingCopy, CloseNeverWritesFewerDrawsThanWereRemovedByHand) {
  TestDesk desk;
  StartQuietly(desk);
  RemoveRow(desk, 2);
  desk.Main().ListView1.RemoveRow(7);
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(WorkingCopy, CloseAfterASwitchWritesNothing) {
  TestDesk desk;
  desk.Start();
  RemoveRow(desk, 2);
  desk.User().Switch(desk.Main());
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(WorkingCopy, StoresTheDayInTwoLetters) {
  TestDesk desk;
  desk.Start();
  desk.Session().data_base_changed = true;
  desk.Desk().Stop();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

// Whatever operation of the disk fails, the database on disk is the old one or
// the new one, whole.
void ExpectNoDrawLost(const std::function<void(TestDesk&)>& rewrite, const std::string& old_bytes,
                      const std::string& new_bytes) {
  for (int failing = 1;; ++failing) {
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    desk.Start();
    disk.FailFromNow(failing, base::Error(base::kDiskFull));
    rewrite(desk);
    const bool failed = disk.HasFailed();
    // What is told is not done, and what is not told is done.
    const std::string bytes = desk.DatabaseBytes();
    EXPECT_EQ(bytes, desk.boxes.shown.empty() ? new_bytes : old_bytes) << "operation " << failing;
    if (!failed) {
      EXPECT_EQ(bytes, new_bytes);
      EXPECT_GT(failing, 1) << "no operation was reached";
      return;
    }
  }
}

TEST(WorkingCopy, AnEditLosesNoDrawWhereverTheDiskFails) {
  auto edited = SampleDraws(40);
  edited[1].b[5] = "49";
  ExpectNoDrawLost([](TestDesk& desk) { EditDraw(desk, 2, "49"); }, Encode(SampleDraws(40)),
                   Encode(edited));
}

TEST(WorkingCopy, ACloseLosesNoDrawWhereverTheDiskFails) {
  auto shorter = SampleDraws(40);
  shorter.erase(shorter.begin() + 1);
  ExpectNoDrawLost(
      [](TestDesk& desk) {
        RemoveRow(desk, 2);
        desk.User().Close(desk.Main());
      },
      Encode(SampleDraws(40)), Encode(shorter));
}

// One ball that is no number kept every change from the file.
TEST(WorkingCopy, TakesARowThatTheBoxesCannotShowAsItStands) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.SetCell(9, 0, "01x");
  RemoveRow(desk, 2);
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected[8].b[0] = "01x";
  expected.erase(expected.begin() + 1);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// An activation reads a small database anew, which after an edit could not be
// read: nothing could be changed any more.
TEST(WorkingCopy, ASmallDatabaseCanBeActivatedAfterARewrite) {
  TestDesk desk(SampleDraws(10));
  StartQuietly(desk);
  EditDraw(desk, 2, "49");
  desk.User().Switch(desk.Main());
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 10);
  EXPECT_TRUE(desk.Main().cmdedit.Enabled());
  EditDraw(desk, 3, "49");
  auto expected = SampleDraws(10);
  expected[1].b[5] = "49";
  expected[2].b[5] = "49";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// The row was corrected in the table, and then its draw was edited and stored
// as it lies in the file: the correction is given up, and does not wait for the
// file any more.
TEST(WorkingCopy, AnEditGivesUpTheCorrectionThatWaited) {
  TestDesk desk;
  StartQuietly(desk);
  EditRow(desk, 3, "98");
  desk.User().Pick(desk.Main().List7, 2);
  desk.User().Click(desk.Main().cmdedit);
  desk.User().Click(desk.Main().cmdedit);
  EXPECT_TRUE(desk.Session().database.pending.empty());
  EXPECT_EQ(desk.Main().ListView1.Cell(3, 5), SampleDraws(3)[2].b[5]);
  EXPECT_EQ(desk.Desk().Undo(), "Undone: Draw of 03/01/00 changed");
  EXPECT_EQ(desk.Session().database.pending.size(), 1u);
  EXPECT_EQ(desk.Main().ListView1.Cell(3, 5), "98");
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

// The blank row had been removed, and the draw on show was taken for the one before it.
TEST(WorkingCopy, StorePendingKeepsTheDrawOnShowInADatabaseThatBeganEmpty) {
  TestDesk desk(std::vector<store::DrawRecord>{});
  StartQuietly(desk);
  const std::vector<store::DrawRecord> draws = SampleDraws(4);
  for (const store::DrawRecord& draw : draws) SaveDraw(desk, draw);
  RemoveRow(desk, 1);  // the blank row
  RemoveRow(desk, 1);
  desk.User().Pick(desk.Main().ListView1, 2);
  EXPECT_EQ(desk.Main().txtDate.Text(), draws[2].date);
  desk.Desk().StorePending();
  EXPECT_EQ(desk.Main().txtDate.Text(), draws[2].date);
  EXPECT_EQ(desk.Main().ListView1.Cell(desk.Main().ListView1.SelectedIndex(), 7), draws[2].date);
  desk.User().Click(desk.Main().cmdedit);
  desk.Main().TxtBall06.SetText("99");
  desk.User().Click(desk.Main().cmdedit);
  auto expected = Without(draws, 1);
  expected[1].b[5] = "99";
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  EXPECT_TRUE(desk.boxes.shown.empty());
}

TEST(WorkingCopy, RewritesMoreThanHalfOfWhatTheCounterHolds) {
  TestDesk desk(SampleDraws(17000));
  desk.Start();
  RemoveRow(desk, 17000);
  desk.Desk().Stop();
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(16999)));
}

}  // namespace
}  // namespace test
