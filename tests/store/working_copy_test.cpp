#include "store/working_copy.h"

#include <gtest/gtest.h>

#include "base/language/error.h"
#include "shell/main_window_subjects.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

store::WorkingCopy& CopyOf(TestDesk& desk) {
  return static_cast<shell::MainWindowSubjects&>(desk.Main()).WorkingCopy();
}

TEST(WorkingCopy, WritesTheLinesBackByWayOfTempDat) {
  TestDesk desk;
  desk.Start();
  const std::string before = desk.DatabaseBytes();
  CopyOf(desk).DoDataBase();
  EXPECT_EQ(desk.DatabaseBytes(), before);
  EXPECT_FALSE(std::filesystem::exists(desk.folder / "Temp.dat"));
  EXPECT_EQ(desk.Session().UpperBound(), 40);
  EXPECT_EQ(desk.Session().data_base_name, "");
  EXPECT_EQ(desk.Session().temp_path, "");
  EXPECT_TRUE(desk.Main().List7.Enabled());
  EXPECT_EQ(desk.Main().ListView1.SelectedIndex(), 40);
}

TEST(WorkingCopy, TakesAnEditedLine) {
  TestDesk desk;
  desk.Start();
  desk.Main().List7.RemoveItem(1);
  desk.Main().List7.InsertItem(1, "01 02 03 04 05 06 07 31/12/99 0 Su");
  CopyOf(desk).DoDataBase();
  auto expected = SampleDraws(40);
  expected[1] = Draw({1, 2, 3, 4, 5, 6, 7}, "Su", "31/12/99");
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(WorkingCopy, RecordsLeftInTempDatStayInFront) {
  TestDesk desk;
  desk.Start();
  const std::string before = desk.DatabaseBytes();
  desk.host_files.Replace(desk.folder.string() + "/Temp.dat", Encode(SampleDraws(2)));
  CopyOf(desk).DoDataBase();
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(2)) + before);
  EXPECT_EQ(desk.Session().UpperBound(), 42);
}

TEST(WorkingCopy, CloseRewritesFromTheTableAfterAChange) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.RemoveRow(2);
  desk.Session().data_base_changed = true;
  desk.User().Close(desk.Main());
  auto expected = SampleDraws(40);
  expected.erase(expected.begin() + 1);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
  EXPECT_EQ(desk.Session().file_len, 39 * 44);
  EXPECT_FALSE(desk.Session().main_window_loaded);
  EXPECT_FALSE(desk.Frame().Command17.Enabled());
  EXPECT_EQ(desk.Frame().Command17.BackColor(), 0xC0C0C0u);
}

TEST(WorkingCopy, CloseWithoutAChangeWritesNothing) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.RemoveRow(2);
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(WorkingCopy, CloseAfterASwitchWritesNothing) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.RemoveRow(2);
  desk.Session().data_base_changed = true;
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

// Whatever operation of the disk fails, the database on disk is the old one or the new one, whole.
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
    EXPECT_EQ(failed, !desk.boxes.shown.empty()) << "operation " << failing;
    const std::string bytes = desk.DatabaseBytes();
    EXPECT_TRUE(bytes == old_bytes || bytes == new_bytes) << "operation " << failing;
    if (!failed) {
      EXPECT_EQ(bytes, new_bytes);
      EXPECT_GT(failing, 1) << "no operation was reached";
      return;
    }
  }
}

TEST(WorkingCopy, AnEditLosesNoDrawWhereverTheDiskFails) {
  auto edited = SampleDraws(40);
  edited[1] = Draw({1, 2, 3, 4, 5, 6, 7}, "Su", "31/12/99");
  ExpectNoDrawLost(
      [](TestDesk& desk) {
        desk.Main().List7.RemoveItem(1);
        desk.Main().List7.InsertItem(1, "01 02 03 04 05 06 07 31/12/99 0 Su");
        CopyOf(desk).DoDataBase();
      },
      Encode(SampleDraws(40)), Encode(edited));
}

TEST(WorkingCopy, ACloseLosesNoDrawWhereverTheDiskFails) {
  auto shorter = SampleDraws(40);
  shorter.erase(shorter.begin() + 1);
  ExpectNoDrawLost(
      [](TestDesk& desk) {
        desk.Main().ListView1.RemoveRow(2);
        desk.Session().data_base_changed = true;
        desk.User().Close(desk.Main());
      },
      Encode(SampleDraws(40)), Encode(shorter));
}

// One ball that is no number kept every change from the file.
TEST(WorkingCopy, TakesARowThatTheBoxesCannotShowAsItStands) {
  TestDesk desk;
  desk.Start();
  desk.Main().ListView1.SetCell(3, 0, "01x");
  desk.Main().ListView1.RemoveRow(2);
  desk.Session().data_base_changed = true;
  desk.Desk().Stop();
  auto expected = SampleDraws(40);
  expected[2].b[0] = "01x";
  expected.erase(expected.begin() + 1);
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(WorkingCopy, RewritesMoreThanHalfOfWhatTheCounterHolds) {
  TestDesk desk(SampleDraws(17000));
  desk.Start();
  desk.Main().ListView1.RemoveRow(17000);
  desk.Session().data_base_changed = true;
  desk.Desk().Stop();
  EXPECT_TRUE(desk.boxes.shown.empty());
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(16999)));
}

}  // namespace
}  // namespace test
