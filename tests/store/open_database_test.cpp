#include "store/open_database.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/language/error.h"
#include "support/desk_acts.h"
#include "support/failing_disk.h"
#include "support/ordinary_user.h"
#include "support/test_desk.h"

namespace test {
namespace {

using store::OpenDatabase;
using Access = OpenDatabase::Access;
using Texts = std::vector<std::string>;

std::string PathIn(const TestDesk& desk) {
  return desk.folder.string() + "\\DataBases\\" + desk.database;
}

// Reads the whole file, as a load does.
void Walk(OpenDatabase& database) {
  store::DrawRecord draw;
  database.BeginWalk();
  while (database.Next(draw) < database.Length()) {
  }
  database.EndWalk();
}

TEST(OpenDatabase, TakesADrawBehindThoseThatWereWrittenAgain) {
  TestDesk desk;
  OpenDatabase database(desk.host_files);
  database.Open(PathIn(desk));
  Walk(database);
  std::filesystem::remove(desk.folder / "DataBases" / desk.database);
  ASSERT_EQ(database.Compare(), OpenDatabase::Standing::kGone);
  database.WriteAgain();
  EXPECT_EQ(database.Compare(), OpenDatabase::Standing::kAsRead);
  database.WriteAgain();
  EXPECT_EQ(database.Append(Draw({1, 2, 3, 4, 5, 6})), 41);
  auto expected = SampleDraws(40);
  expected.push_back(Draw({1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

TEST(OpenDatabase, KnowsNothingOfTheLoadBefore) {
  TestDesk desk;
  OpenDatabase database(desk.host_files);
  database.Open(PathIn(desk));
  Walk(database);
  database.keeps_own_rows = true;
  database.pending[3] = std::nullopt;
  database.log.Add({.told = "Draw of 03/01/00 removed", .place = 3});
  database.Open(PathIn(desk));
  EXPECT_FALSE(database.keeps_own_rows);
  EXPECT_TRUE(database.pending.empty());
  EXPECT_TRUE(database.log.Newest().empty());
  EXPECT_FALSE(database.IsComplete());
}

// A file that was written and could not be opened again is known by what was written.
TEST(OpenDatabase, CanBeWalkedAgainAfterARewrite) {
  const std::string written = Encode(SampleDraws(39));
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    OpenDatabase database(disk);
    database.Open(PathIn(desk));
    Walk(database);
    disk.FailFromNow(failing, base::Error(base::kPathAccess));
    bool wrote = false;
    try {
      wrote = database.Rewrite(written, {2005, 12, 5}).wrote;
    } catch (const base::Error&) {
    }
    EXPECT_EQ(desk.DatabaseBytes(), wrote ? written : Encode(SampleDraws(40)));
    const bool failed = disk.HasFailed();
    disk.FailFromNow(1000, base::Error(base::kPathAccess));
    Walk(database);
    EXPECT_TRUE(database.IsComplete());
    EXPECT_EQ(database.UpperBound(), wrote ? 39 : 40);
    EXPECT_EQ(database.Compare(), OpenDatabase::Standing::kAsRead);
    database.Append(Draw({1, 2, 3}));
    EXPECT_EQ(desk.DatabaseBytes().size(), wrote ? 40u * 44 : 41u * 44);
    if (!failed) {
      EXPECT_GT(failing, 3) << "no operation was reached";
      return;
    }
  }
}

// --- The lock

TEST(Lock, KeepsASecondDeskOutUntilTheFirstCloses) {
  TestDesk desk;
  OpenDatabase first(desk.host_files);
  first.Open(PathIn(desk));
  EXPECT_EQ(first.Lock(), Access::kMine);
  OpenDatabase second(desk.host_files);
  second.Open(PathIn(desk));
  EXPECT_EQ(second.Lock(), Access::kInUse);
  EXPECT_EQ(second.TryLock(), Access::kInUse);
  Walk(second);
  EXPECT_EQ(second.UpperBound(), 40);
  first.Close();
  EXPECT_EQ(first.Lock(), Access::kNone);
  EXPECT_EQ(second.TryLock(), Access::kMine);
  first.Open(PathIn(desk));
  EXPECT_EQ(first.Lock(), Access::kInUse);
}

TEST(Lock, IsHeldThroughALoadOfTheSameFile) {
  TestDesk desk;
  OpenDatabase first(desk.host_files);
  OpenDatabase second(desk.host_files);
  first.Open(PathIn(desk));
  first.Open(PathIn(desk));
  EXPECT_EQ(first.Lock(), Access::kMine);
  second.Open(PathIn(desk));
  EXPECT_EQ(second.Lock(), Access::kInUse);
}

TEST(Lock, OfOneDatabaseLeavesTheOthersAlone) {
  TestDesk desk;
  OpenDatabase first(desk.host_files);
  OpenDatabase second(desk.host_files);
  first.Open(PathIn(desk));
  second.Open(desk.folder.string() + "\\DataBases\\Other.dat");
  EXPECT_EQ(second.Lock(), Access::kMine);
  first.Open(desk.folder.string() + "\\DataBases\\Third.dat");
  second.Open(PathIn(desk));
  EXPECT_EQ(second.Lock(), Access::kMine);
}

TEST(Lock, IsAFileThatStaysAndThatNoOtherProgramInherits) {
  TestDesk desk;
  const std::filesystem::path lock = desk.folder / "DataBases" / ".UK-National-Lottery.lock";
  OpenDatabase database(desk.host_files);
  database.Open(PathIn(desk));
  int found = 0;
  for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
    std::error_code gone;
    if (std::filesystem::read_symlink(entry, gone) != lock) continue;
    ++found;
    EXPECT_NE(fcntl(std::stoi(entry.path().filename()), F_GETFD) & FD_CLOEXEC, 0);
  }
  EXPECT_EQ(found, 1);
  database.Close();
  EXPECT_TRUE(std::filesystem::is_regular_file(lock));
  EXPECT_EQ(std::filesystem::file_size(lock), 0u);
}

TEST(Lock, IsNoneWhereItsNameIsNoFile) {
  TestDesk desk;
  const std::filesystem::path lock = desk.folder / "DataBases" / ".UK-National-Lottery.lock";
  OpenDatabase database(desk.host_files);
  ASSERT_EQ(mkfifo(lock.c_str(), 0600), 0);
  database.Open(PathIn(desk));
  EXPECT_EQ(database.Lock(), Access::kNone);
  std::filesystem::remove(lock);
  std::filesystem::create_symlink("../victim", lock);
  EXPECT_EQ(database.TryLock(), Access::kNone);
  EXPECT_FALSE(std::filesystem::exists(desk.folder / "victim"));
  std::filesystem::remove(lock);
  EXPECT_EQ(database.TryLock(), Access::kMine);
}

// Every way to change a database is refused and told, and the file stays.
void ExpectEveryChangeRefused(TestDesk& desk, const char* told) {
  const auto expect_refused = [&](const char* what) {
    SCOPED_TRACE(what);
    EXPECT_EQ(desk.TakeBoxTexts(), Texts{told});
    EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  };
  StartQuietly(desk);
  EXPECT_EQ(desk.TakeBoxTexts(), Texts());
  EXPECT_EQ(desk.Main().ListView1.RowCount(), 40);
  EditDraw(desk, 3, "99");
  expect_refused("an edit");
  EXPECT_EQ(desk.Main().TxtBall06.Text(), "99");
  EXPECT_EQ(desk.Main().ListView1.Cell(3, 5), SampleDraws(3)[2].b[5]);
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  expect_refused("a save");
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "01");
  desk.User().Click(desk.Main().CmdReset);
  RemoveRow(desk, 5);
  desk.Desk().StorePending();
  expect_refused("StorePending");
  EXPECT_EQ(desk.Session().database.pending.size(), 1u);
  desk.User().Close(desk.Main());
  expect_refused("a close");
  EXPECT_EQ(desk.Session().database.Earlier(), Texts());
}

TEST(Lock, OfAnotherDeskRefusesEveryChange) {
  TestDesk desk;
  OpenDatabase other(desk.host_files);
  other.Open(PathIn(desk));
  ExpectEveryChangeRefused(desk, "The database is in use by another desk, nothing was changed");
}

TEST(Lock, ThatCannotBeMadeRefusesEveryChange) {
  TestDesk desk;
  AsOrdinaryUser(desk.folder.string(), [&] {
    std::filesystem::permissions(desk.folder / "DataBases", std::filesystem::perms(0500));
    OpenDatabase database(desk.host_files);
    database.Open(PathIn(desk));
    EXPECT_EQ(database.Lock(), Access::kNone);
    ExpectEveryChangeRefused(
        desk, "Nothing can be stored in the folder of the databases, nothing was changed");
    std::filesystem::permissions(desk.folder / "DataBases", std::filesystem::perms(0700));
  });
}

TEST(Lock, ThatBecameFreeLetsChangesThrough) {
  TestDesk desk;
  OpenDatabase other(desk.host_files);
  other.Open(PathIn(desk));
  StartQuietly(desk);
  Walk(other);
  other.Append(Draw({1, 2, 3, 4, 5, 6, 7}));
  EditDraw(desk, 3, "99");
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  other.Close();
  // What the other desk stored meanwhile is not written over.
  desk.boxes.answers = {base::Answer::kYes};
  EditDraw(desk, 3, "99");
  EXPECT_EQ(desk.TakeBoxTexts(),
            Texts{"UK-National-Lottery was changed by another program since it was opened. "
                  "Nothing was saved. Load it again?"});
  EditDraw(desk, 3, "99");
  EXPECT_EQ(desk.TakeBoxTexts(), Texts());
  auto expected = SampleDraws(40);
  expected[2].b[5] = "99";
  expected.push_back(Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(desk.DatabaseBytes(), Encode(expected));
}

// The desk that held it was killed, and left a second name of the file among the earlier states.
TEST(Lock, ThatBecameFreeLeavesNoSecondNameOfTheFile) {
  TestDesk desk;
  const std::filesystem::path folder = desk.folder / "DataBases";
  OpenDatabase other(desk.host_files);
  other.Open(PathIn(desk));
  StartQuietly(desk);
  std::filesystem::create_directory(folder / "Earlier");
  std::filesystem::create_hard_link(
      folder / desk.database, folder / "Earlier" / "UK-National-Lottery 2005-12-05 14-30-00.dat");
  other.Close();
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(desk.TakeBoxTexts(), Texts());
  EXPECT_EQ(desk.DatabaseBytes().size(), 41u * 44);
  EXPECT_EQ(desk.Desk().Earlier(), Texts());
}

// What was read is an earlier state by then, and the only name of its bytes.
TEST(Lock, ThatBecameFreeLeavesTheEarlierStatesOfTheOtherDesk) {
  TestDesk desk;
  OpenDatabase other(desk.host_files);
  other.Open(PathIn(desk));
  Walk(other);
  StartQuietly(desk);
  EXPECT_TRUE(other.Rewrite(Encode(SampleDraws(39)), {2005, 12, 5, 14, 30, 0}).wrote);
  other.Close();
  desk.boxes.answers = {base::Answer::kNo};
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(desk.ReadFile("DataBases/Earlier/UK-National-Lottery 2005-12-05 14-30-00.dat"),
            Encode(SampleDraws(40)));
}

TEST(Lock, ThatIsLostRefusesToTakeBack) {
  TestDesk desk;
  StartQuietly(desk);
  EditDraw(desk, 3, "99");
  const std::string edited = desk.DatabaseBytes();
  desk.Session().database.Close();
  EXPECT_EQ(desk.Desk().Undo(), "");
  EXPECT_EQ(desk.DatabaseBytes(), edited);
}

// --- What is no database

Texts NamesIn(const std::filesystem::path& folder) {
  Texts names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    names.push_back(entry.path().lexically_relative(folder).string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void ExpectNothingCanBeChanged(TestDesk& desk) {
  for (base::Button* button : {&desk.Main().cmdAdd, &desk.Main().cmdedit, &desk.Main().Command18}) {
    EXPECT_FALSE(button->Enabled()) << button->Name();
    EXPECT_EQ(button->ToolTipText(),
              "Not every draw of this database could be read, so none can be changed");
  }
  EXPECT_FALSE(desk.Main().cmdSave.Enabled());
}

constexpr const char* kMissing =
    "Database could not be found\r\nPlease load a database from the database window";

TEST(DatabaseName, WithAFolderInItIsNone) {
  for (const char* name : {"../x.dat", "..\\x.dat", "a\\b.dat", "a/b.dat", "/var/x.dat", ".", "..",
                           "../DataBases/UK-National-Lottery.dat"}) {
    SCOPED_TRACE(name);
    TestDesk desk;
    desk.settings.Save("Velmonte", "Data", "DataBaseName", name);
    const Texts before = NamesIn(desk.folder);
    StartQuietly(desk);
    EXPECT_EQ(desk.TakeBoxTexts(), Texts{kMissing});
    ExpectNothingCanBeChanged(desk);
    EXPECT_FALSE(desk.Session().database.IsOpen());
    EXPECT_TRUE(desk.Desk().Notices().empty());
    desk.User().Switch(desk.Main());
    ExpectNothingCanBeChanged(desk);
    desk.Session().data_base_changed = true;
    desk.Desk().Stop();
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    EXPECT_EQ(NamesIn(desk.folder), before);
    EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  }
}

// Opening a pipe waits for its other end, and a device may never end.
TEST(OpenDatabase, WhatIsNoFileIsToldAndNotWaitedFor) {
  struct Case {
    const char* what;
    std::function<void(const std::filesystem::path&)> make;
  };
  const Case cases[] = {
      {"a pipe", [](const auto& path) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }},
      {"a folder", [](const auto& path) { std::filesystem::create_directory(path); }},
      {"a device", [](const auto& path) { std::filesystem::create_symlink("/dev/zero", path); }},
      {"a link to itself",
       [](const auto& path) { std::filesystem::create_symlink(path.filename(), path); }},
  };
  for (const Case& test_case : cases) {
    SCOPED_TRACE(test_case.what);
    TestDesk desk;
    const std::filesystem::path path = desk.folder / "DataBases" / desk.database;
    std::filesystem::remove(path);
    test_case.make(path);
    StartQuietly(desk);
    const Texts told = desk.TakeBoxTexts();
    ASSERT_EQ(told.size(), 2u);
    EXPECT_EQ(told[0], kMissing);
    EXPECT_NE(told[1].find("illigal operation at LoadFirstDatabase"), std::string::npos);
    EXPECT_NE(told[1].find("Error Number [75] "), std::string::npos);
    ExpectNothingCanBeChanged(desk);
    desk.Desk().Stop();
    EXPECT_FALSE(std::filesystem::is_regular_file(std::filesystem::symlink_status(path)));
  }
}

// --- What is not known whole

TEST(OpenDatabase, OfMoreDrawsThanTheCounterHoldsIsNeverChanged) {
  TestDesk desk(SampleDraws(32768));
  const std::string before = desk.DatabaseBytes();
  StartQuietly(desk);
  const Texts told = desk.TakeBoxTexts();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_NE(told[0].find("Error Number [6] "), std::string::npos);
  ExpectNothingCanBeChanged(desk);
  desk.Session().data_base_changed = true;
  desk.Desk().Stop();
  EXPECT_TRUE(desk.DatabaseBytes() == before);
}

TEST(OpenDatabase, ThatIsFullRefusesOneDrawMore) {
  TestDesk desk(SampleDraws(32767));
  const std::string before = desk.DatabaseBytes();
  StartQuietly(desk);
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  const Texts told = desk.TakeBoxTexts();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_NE(told[0].find("Error Number [6] "), std::string::npos);
  desk.Desk().Stop();
  EXPECT_TRUE(desk.DatabaseBytes() == before);
}

// A read error in the middle of a load showed a part of the draws, and an edit cut the rest off.
TEST(OpenDatabase, ThatCouldNotBeReadIsNeverChanged) {
  const std::string before = Encode(SampleDraws(8260));
  bool saw_a_part = false;
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk(SampleDraws(8260));
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    disk.FailFromNow(failing, base::Error(base::kPathAccess));
    StartQuietly(desk);
    if (!disk.HasFailed()) {
      EXPECT_EQ(desk.TakeBoxTexts(), Texts());
      EXPECT_EQ(desk.Main().ListView1.RowCount(), 8260);
      break;
    }
    EXPECT_GE(desk.TakeBoxTexts().size(), 1u);
    ExpectNothingCanBeChanged(desk);
    const int shown = desk.Main().ListView1.RowCount();
    saw_a_part |= shown > 0 && shown < 8260;
    // Where next to nothing was shown the activation reads it anew.
    const bool reads_anew = desk.Main().List7.ListCount() < 30;
    desk.User().Switch(desk.Main());
    EXPECT_EQ(desk.Session().database.IsComplete(), reads_anew && desk.Session().database.IsOpen());
    if (!desk.Session().database.IsComplete()) ExpectNothingCanBeChanged(desk);
    desk.TakeBoxTexts();
    desk.Session().data_base_changed = true;
    desk.Desk().Stop();
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    EXPECT_TRUE(desk.DatabaseBytes() == before);
  }
  EXPECT_TRUE(saw_a_part);
}

// --- What would write the same

class SameBytes : public testing::Test {
 protected:
  SameBytes() { StartQuietly(desk_); }

  void ExpectUntouched() {
    EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
    EXPECT_EQ(Identity(), before_);
    EXPECT_FALSE(std::filesystem::exists(desk_.folder / "DataBases" / "Earlier"));
  }
  base::FileIdentity Identity() { return *desk_.host_files.Identify(PathIn(desk_)); }

  TestDesk desk_;
  const base::FileIdentity before_ = Identity();
};

TEST_F(SameBytes, AreNotWrittenByAnEdit) {
  EditDraw(desk_, 3, SampleDraws(3)[2].b[5]);
  ExpectUntouched();
  EXPECT_EQ(desk_.Desk().Undo(), "");
}

TEST_F(SameBytes, AreNotWrittenByAClose) {
  EditRow(desk_, 3, SampleDraws(3)[2].b[5]);
  desk_.Session().data_base_changed = true;
  desk_.Desk().Stop();
  ExpectUntouched();
}

TEST_F(SameBytes, AreNotWrittenByStorePending) {
  EditRow(desk_, 3, "99");
  EditRow(desk_, 3, SampleDraws(3)[2].b[5]);
  EXPECT_EQ(desk_.Session().database.pending.size(), 1u);
  desk_.Desk().StorePending();
  EXPECT_TRUE(desk_.Session().database.pending.empty());
  ExpectUntouched();
}

TEST_F(SameBytes, AreNotWrittenByUndo) {
  RemoveRow(desk_, 3);
  EXPECT_NE(desk_.Desk().Undo(), "");
  ExpectUntouched();
}

}  // namespace
}  // namespace test
