#include "store/earlier_states.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>

#include "support/desk_acts.h"
#include "support/failing_disk.h"
#include "support/system_calls.h"
#include "support/test_desk.h"

namespace test {
namespace {

using Names = std::vector<std::string>;
using Texts = std::vector<std::string>;

const char* const kName = "UK-National-Lottery 2005-12-05 14-30-00.dat";
const char* const kSecondName = "UK-National-Lottery 2005-12-05 14-30-00 (2).dat";
constexpr base::DateTime kNow{2005, 12, 5, 14, 30, 0};

std::filesystem::path FolderOf(const TestDesk& desk) {
  return desk.folder / "DataBases" / "Earlier";
}

std::filesystem::path DatabaseOf(const TestDesk& desk) {
  return desk.folder / "DataBases" / desk.database;
}

std::string StateBytes(const TestDesk& desk, const std::string& name) {
  return desk.ReadFile("DataBases/Earlier/" + name);
}

// Everything in the folder, whether the desk takes it for a state or not.
Names NamesIn(const std::filesystem::path& folder) {
  Names names;
  if (!std::filesystem::exists(folder)) return names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Edited(int place, const char* ball) {
  auto draws = SampleDraws(40);
  draws[static_cast<std::size_t>(place - 1)].b[5] = ball;
  return Encode(draws);
}

// --- Names

TEST(EarlierStates, BearNameDateAndTime) {
  TestDesk desk;
  desk.clock.now = kNow;
  StartQuietly(desk);
  EXPECT_EQ(desk.Desk().Earlier(), Names());
  EditDraw(desk, 3, "98");
  EXPECT_EQ(desk.Desk().Earlier(), Names{kName});
  EXPECT_EQ(StateBytes(desk, kName), Encode(SampleDraws(40)));
}

TEST(EarlierStates, OfOneSecondAreCounted) {
  TestDesk desk;
  desk.clock.now = kNow;
  StartQuietly(desk);
  EditDraw(desk, 3, "98");
  EditDraw(desk, 3, "97");
  EXPECT_EQ(desk.Desk().Earlier(), (Names{kSecondName, kName}));
  EXPECT_EQ(StateBytes(desk, kName), Encode(SampleDraws(40)));
  EXPECT_EQ(StateBytes(desk, kSecondName), Edited(3, "98"));
}

TEST(EarlierStates, AreKeptOfWhatIsRewrittenAndNotOfWhatIsAppended) {
  TestDesk desk;
  StartQuietly(desk);
  SaveDraw(desk, Draw({1, 2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(desk.Desk().Earlier(), Names());
  RemoveRow(desk, 3);
  EXPECT_EQ(desk.Desk().Earlier(), Names());
  desk.Desk().StorePending();
  EXPECT_EQ(desk.Desk().Earlier().size(), 1u);
  desk.Desk().Undo();
  EXPECT_EQ(desk.Desk().Earlier().size(), 2u);
  RemoveRow(desk, 3);
  desk.User().Close(desk.Main());
  EXPECT_EQ(desk.Desk().Earlier().size(), 3u);
}

TEST(EarlierStates, AreToldTheNewestFirst) {
  TestDesk desk;
  for (const char* name : {
           "UK-National-Lottery 2005-12-05 14-30-00 (10).dat",
           "UK-National-Lottery 2005-12-05 14-30-00 (9).dat",
           "UK-National-Lottery 2005-12-05 14-30-00.dat",
           "UK-National-Lottery 2005-12-05 09-30-00.dat",
           "uk-national-lottery 2006-01-01 00-00-00.DAT",
           // None of this database's:
           "UK 2005-12-05 14-30-00.dat",
           "UK-National-Lottery-2 2005-12-05 14-30-00.dat",
           "UK-National-Lottery own 2005-12-05 14-30-00.dat",
           "UK-National-Lottery 2005-12-05.dat",
           "UK-National-Lottery 2005-12-05 14-30-00 ().dat",
           "UK-National-Lottery 2005-12-05 14-30-00 (x).dat",
           "UK-National-Lottery 2005-12-05 14-30-00.dat.new~1",
           "2005-12-05 14-30-00.dat",
           ").dat",
           ".dat",
       }) {
    Write(FolderOf(desk) / name, "");
  }
  StartQuietly(desk);
  EXPECT_EQ(desk.Desk().Earlier(), (Names{"UK-National-Lottery 2005-12-05 14-30-00 (10).dat",
                                          "UK-National-Lottery 2005-12-05 14-30-00 (9).dat",
                                          "UK-National-Lottery 2005-12-05 14-30-00.dat",
                                          "UK-National-Lottery 2005-12-05 09-30-00.dat"}));
}

TEST(EarlierStates, OfANameWithANumberAreItsOwn) {
  TestDesk desk(SampleDraws(40), "Odd (2).dat");
  desk.clock.now = kNow;
  StartQuietly(desk);
  EditDraw(desk, 3, "98");
  EditDraw(desk, 3, "97");
  EXPECT_EQ(desk.Desk().Earlier(),
            (Names{"Odd (2) 2005-12-05 14-30-00 (2).dat", "Odd (2) 2005-12-05 14-30-00.dat"}));
}

// --- Which are kept

std::string StateOf(const std::string& time) { return "X " + time + ".dat"; }

// So many states of a day, the newest first, a minute apart from noon on.
Names StatesOf(const std::string& day, int count) {
  Names names;
  for (int minute = count - 1; minute >= 0; --minute) {
    const std::string text = std::to_string(minute);
    names.push_back(StateOf(day + " 12-" + (minute < 10 ? "0" : "") + text + "-00"));
  }
  return names;
}

Names Joined(Names names, const Names& older) {
  names.insert(names.end(), older.begin(), older.end());
  return names;
}

TEST(EarlierStates, TheLastTwentyAndTheFirstOfThirtyDaysAreKept) {
  struct Case {
    const char* rule;
    Names names;
    Names outlived;
  };
  const Names twenty = StatesOf("2005-12-05", 20);
  const auto first_of = [](const char* day) { return StateOf(std::string(day) + " 12-00-00"); };
  const Case cases[] = {
      {"none", {}, {}},
      {"twenty of one day", twenty, {}},
      {"twenty of long ago", StatesOf("1999-01-01", 20), {}},
      {"the first of the day as well", StatesOf("2005-12-05", 21), {}},
      {"between the first and the last twenty",
       StatesOf("2005-12-05", 23),
       {StateOf("2005-12-05 12-02-00"), StateOf("2005-12-05 12-01-00")}},
      {"the first of yesterday",
       Joined(twenty, StatesOf("2005-12-04", 2)),
       {StateOf("2005-12-04 12-01-00")}},
      {"one a day",
       Joined(twenty, {first_of("2005-12-04"), first_of("2005-12-03"), first_of("2005-12-01")}),
       {}},
      {"the thirtieth day, today counted", Joined(twenty, {first_of("2005-11-06")}), {}},
      {"the day before", Joined(twenty, {first_of("2005-11-05")}), {first_of("2005-11-05")}},
      {"long ago",
       Joined(twenty, StatesOf("1999-01-01", 2)),
       {StateOf("1999-01-01 12-01-00"), StateOf("1999-01-01 12-00-00")}},
      {"a clock that was set back",
       Joined(StatesOf("2006-01-02", 20), {first_of("2006-01-01")}),
       {}},
      {"the first of its second",
       Joined(twenty, {StateOf("2005-12-04 12-00-00 (10)"), StateOf("2005-12-04 12-00-00 (9)"),
                       StateOf("2005-12-04 12-00-00")}),
       {StateOf("2005-12-04 12-00-00 (10)"), StateOf("2005-12-04 12-00-00 (9)")}},
  };
  for (const Case& test_case : cases) {
    EXPECT_EQ(store::Outlived(test_case.names, {2005, 12, 5}), test_case.outlived)
        << test_case.rule;
  }
}

TEST(EarlierStates, ThirtyDaysGoOverTheEndsOfMonthsAndYears) {
  const Names twenty = StatesOf("2004-03-01", 20);
  const auto is_kept = [&](const char* day, base::Date today) {
    return store::Outlived(Joined(twenty, {StateOf(std::string(day) + " 00-00-00")}), today)
        .empty();
  };
  EXPECT_TRUE(is_kept("2004-02-01", {2004, 3, 1}));  // a leap year's February
  EXPECT_FALSE(is_kept("2004-01-31", {2004, 3, 1}));
  EXPECT_TRUE(is_kept("2003-12-12", {2004, 1, 10}));
  EXPECT_FALSE(is_kept("2003-12-11", {2004, 1, 10}));
}

TEST(EarlierStates, ThatAreOutlivedGoAtTheNextRewrite) {
  TestDesk desk;
  desk.clock.now = kNow;
  StartQuietly(desk);
  const std::string other = "Other 1999-01-01 00-00-00.dat";
  Write(FolderOf(desk) / other, "of another database");
  for (int minute = 0; minute < 25; ++minute) {
    desk.clock.now.minute = minute;
    EditDraw(desk, 3, std::to_string(60 + minute));
  }
  const Names states = desk.Desk().Earlier();
  ASSERT_EQ(states.size(), 21u);
  EXPECT_EQ(states.front(), "UK-National-Lottery 2005-12-05 14-24-00.dat");
  EXPECT_EQ(states[19], "UK-National-Lottery 2005-12-05 14-05-00.dat");
  EXPECT_EQ(states.back(), "UK-National-Lottery 2005-12-05 14-00-00.dat");
  EXPECT_EQ(StateBytes(desk, states.back()), Encode(SampleDraws(40)));
  EXPECT_EQ(StateBytes(desk, states.front()), Edited(3, "83"));
  EXPECT_EQ(NamesIn(FolderOf(desk)).size(), 22u);
  EXPECT_EQ(StateBytes(desk, other), "of another database");
}

// --- What goes wrong

TEST(EarlierStates, OneWhoseRewriteFailedIsRemoved) {
  TestDesk desk;
  StartQuietly(desk);
  TypeEdit(desk, 3, "98");
  {
    SystemCalls calls;
    calls.FailFromNow(1, EIO, "renameat2");
    desk.User().Click(desk.Main().cmdedit);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  EXPECT_EQ(NamesIn(FolderOf(desk)), Names());
}

TEST(EarlierStates, ThatTheDiskRefusesLeavesTheFileAsItWas) {
  TestDesk desk;
  StartQuietly(desk);
  TypeEdit(desk, 3, "98");
  {
    SystemCalls calls;
    calls.FailFromNow(1, EIO, "link");
    desk.User().Click(desk.Main().cmdedit);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(EarlierStates, AreCopiesWhereTheDiskGivesNoSecondNames) {
  for (const int error : {EXDEV, EPERM, EOPNOTSUPP, ENOSYS, EMLINK}) {
    SCOPED_TRACE("errno " + std::to_string(error));
    TestDesk desk;
    desk.clock.now = kNow;
    StartQuietly(desk);
    TypeEdit(desk, 3, "98");
    {
      SystemCalls calls;
      calls.FailFromNow(1, error, "link");
      desk.User().Click(desk.Main().cmdedit);
      EXPECT_TRUE(calls.HasStruck());
    }
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    EXPECT_EQ(desk.DatabaseBytes(), Edited(3, "98"));
    EXPECT_EQ(NamesIn(FolderOf(desk)), Names{kName});
    EXPECT_EQ(StateBytes(desk, kName), Encode(SampleDraws(40)));
  }
}

// A desk that was killed before it could replace the file left a second name of it: what is
// appended later would be in the earlier state too.
TEST(EarlierStates, ASecondNameOfTheFileItselfIsRemovedAtTheNextStart) {
  TestDesk desk;
  const std::string older = "UK-National-Lottery 2005-12-04 14-30-00.dat";
  Write(FolderOf(desk) / older, "older");
  std::filesystem::create_hard_link(DatabaseOf(desk), FolderOf(desk) / kName);
  StartQuietly(desk);
  EXPECT_EQ(desk.Desk().Earlier(), Names{older});
  EXPECT_EQ(std::filesystem::hard_link_count(DatabaseOf(desk)), 1u);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
}

TEST(EarlierStates, OfTheSameBytesStayAtTheNextStart) {
  TestDesk desk;
  Write(FolderOf(desk) / kName, Encode(SampleDraws(40)));
  StartQuietly(desk);
  EXPECT_EQ(desk.Desk().Earlier(), Names{kName});
}

// --- Another program writes while the desk saves

// A disk on which another program writes to the database while an earlier state is kept.
class BusyDisk : public FailingDisk {
 public:
  BusyDisk(base::FileSystem& disk, std::function<void()> foreign)
      : FailingDisk(disk), foreign_(std::move(foreign)) {}
  void Keep(const std::string& path, const std::string& second_path) override {
    foreign_();
    FailingDisk::Keep(path, second_path);
  }

 private:
  std::function<void()> foreign_;
};

TEST(EarlierStates, AForeignWriteInBetweenIsToldAndKept) {
  for (const bool by_rename : {false, true}) {
    TestDesk desk;
    const std::string foreign = Encode(SampleDraws(39));
    BusyDisk disk(desk.host_files, [&] {
      const std::filesystem::path beside = desk.folder / "foreign";
      Write(by_rename ? beside : DatabaseOf(desk), foreign);
      if (by_rename) std::filesystem::rename(beside, DatabaseOf(desk));
    });
    desk.files = &disk;
    desk.clock.now = kNow;
    StartQuietly(desk);
    EditDraw(desk, 3, "98");
    EXPECT_EQ(desk.TakeBoxTexts(),
              Texts{"UK-National-Lottery was changed by another program while it was saved. What "
                    "that wrote is kept as Earlier\\UK-National-Lottery 2005-12-05 14-30-00.dat"});
    EXPECT_EQ(desk.DatabaseBytes(), Edited(3, "98"));
    EXPECT_EQ(StateBytes(desk, kName), foreign);
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), Edited(3, "98"));
  }
}

// The state is all that is left of the draws then.
TEST(EarlierStates, OneWhoseRewriteFailedStaysWhereAnotherProgramHasTakenTheFile) {
  TestDesk desk;
  desk.clock.now = kNow;
  StartQuietly(desk);
  TypeEdit(desk, 3, "98");
  {
    SystemCalls calls;
    calls.Lack("rename", EIO);
    calls.ActBefore(
        1, [&] { std::filesystem::remove(DatabaseOf(desk)); }, "renameat2");
    desk.User().Click(desk.Main().cmdedit);
    EXPECT_TRUE(calls.HasStruck());
  }
  EXPECT_EQ(desk.TakeBoxTexts().size(), 1u);
  EXPECT_EQ(StateBytes(desk, kName), Encode(SampleDraws(40)));
}

// --- A database that is a link

class LinkedDatabase : public testing::Test {
 protected:
  LinkedDatabase() {
    std::filesystem::create_directory(desk_.folder / "elsewhere");
    std::filesystem::rename(DatabaseOf(desk_), desk_.folder / "elsewhere" / "real.dat");
    std::filesystem::create_symlink("../elsewhere/real.dat", DatabaseOf(desk_));
    desk_.clock.now = kNow;
    StartQuietly(desk_);
  }

  void ExpectHolds(const std::string& bytes) {
    EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
    ASSERT_TRUE(std::filesystem::is_symlink(DatabaseOf(desk_)));
    EXPECT_EQ(std::filesystem::read_symlink(DatabaseOf(desk_)), "../elsewhere/real.dat");
    EXPECT_EQ(desk_.ReadFile("elsewhere/real.dat"), bytes);
    EXPECT_EQ(NamesIn(desk_.folder / "elsewhere"), Names{"real.dat"});
  }

  TestDesk desk_;
};

TEST_F(LinkedDatabase, KeepsItsLinkThroughARewrite) {
  EXPECT_EQ(desk_.Main().ListView1.RowCount(), 40);
  EditDraw(desk_, 3, "98");
  ExpectHolds(Edited(3, "98"));
  EXPECT_EQ(desk_.Desk().Earlier(), Names{kName});
  EXPECT_EQ(StateBytes(desk_, kName), Encode(SampleDraws(40)));
  EXPECT_FALSE(std::filesystem::is_symlink(FolderOf(desk_) / kName));
}

TEST_F(LinkedDatabase, TakesNewDrawsBehindItsLink) {
  SaveDraw(desk_, Draw({1, 2, 3, 4, 5, 6, 7}));
  auto draws = SampleDraws(40);
  draws.push_back(Draw({1, 2, 3, 4, 5, 6, 7}));
  ExpectHolds(Encode(draws));
  EXPECT_EQ(desk_.Desk().Undo(), "Undone: Draw of 05/12/05 saved");
  ExpectHolds(Encode(SampleDraws(40)));
}

TEST_F(LinkedDatabase, LosesTheSecondNameThatAKillLeft) {
  desk_.Desk().Stop();
  std::filesystem::create_directories(FolderOf(desk_));
  std::filesystem::create_hard_link(desk_.folder / "elsewhere" / "real.dat",
                                    FolderOf(desk_) / kName);
  desk_.Start();
  EXPECT_EQ(desk_.Desk().Earlier(), Names());
  ExpectHolds(Encode(SampleDraws(40)));
}

}  // namespace
}  // namespace test
