#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "main/draw_lists.h"
#include "support/desk_acts.h"
#include "support/killed_process.h"
#include "support/test_desk.h"

// The process dies without a word before and after every single file call of what changes the
// database. No draw may be lost by that, nor by what it leaves behind.

namespace test {
namespace {

constexpr int kDraws = 3000;
constexpr int kFewDraws = 40;
constexpr std::size_t kRecordLength = 44;
constexpr int kMostMoments = 2000;
const char* const kDatabase = "DataBases/UK-National-Lottery.dat";
const char* const kTemp = "Temp.dat";
const char* const kBeside = ".new~";  // in the name of a file that was to replace another

// The files of a folder, by their paths in it.
using Files = std::map<std::string, std::string>;

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) names.push_back(entry.path().lexically_relative(folder).string());
  }
  return names;
}

Files FilesIn(const TestDesk& desk) {
  Files files;
  for (const std::string& name : NamesIn(desk.folder)) files[name] = desk.ReadFile(name);
  return files;
}

void PutFiles(const TestDesk& desk, const Files& files) {
  for (const std::string& name : NamesIn(desk.folder)) {
    if (!files.contains(name)) std::filesystem::remove(desk.folder / name);
  }
  for (const auto& [name, bytes] : files) {
    std::filesystem::create_directories((desk.folder / name).parent_path());
    std::filesystem::remove(desk.folder / name);  // it may have a second name, which stays as it is
    std::ofstream(desk.folder / name, std::ios::binary) << bytes;
  }
}

std::string BytesOf(const Files& files, const std::string& name) {
  const auto found = files.find(name);
  return found == files.end() ? "" : found->second;
}

bool HasBeside(const Files& files) {
  for (const auto& [name, bytes] : files) {
    if (name.find(kBeside) != std::string::npos) return true;
  }
  return false;
}

bool HasEarlier(const Files& files) {
  return std::any_of(files.begin(), files.end(),
                     [](const auto& file) { return file.first.starts_with("DataBases/Earlier/"); });
}

// The number of the process at the end of a name is of no account.
Files WithoutProcess(const Files& files) {
  Files same;
  for (const auto& [name, bytes] : files) same[name.substr(0, name.find('~'))] = bytes;
  return same;
}

// One way to change the database, and the draws before and after it.
struct Change {
  std::vector<store::DrawRecord> old_draws;
  std::vector<store::DrawRecord> new_draws;
  std::function<void(TestDesk&)> make;
  std::vector<store::DrawRecord> start_from = old_draws;
  std::function<void(TestDesk&)> before = [](TestDesk&) {};
};

Change ASave(int count) {
  const store::DrawRecord added = Draw({3, 7, 12, 20, 30, 40, 5}, "Sa");
  Change change{SampleDraws(count), SampleDraws(count),
                [added](TestDesk& desk) { SaveDraw(desk, added); }};
  change.new_draws.push_back(added);
  return change;
}

Change AnEdit(int count) {
  const int edited = count / 2;
  Change change{SampleDraws(count), SampleDraws(count),
                [edited](TestDesk& desk) { EditDraw(desk, edited + 1, "99"); }};
  change.new_draws[static_cast<std::size_t>(edited)].b[5] = "99";
  return change;
}

// A draw was removed, which reaches the file now.
Change AClose(int count) {
  const int removed = count / 3;
  Change change{SampleDraws(count), SampleDraws(count),
                [](TestDesk& desk) { desk.User().Close(desk.Main()); }};
  change.before = [removed](TestDesk& desk) { RemoveRow(desk, removed + 1); };
  change.new_draws.erase(change.new_draws.begin() + removed);
  return change;
}

// The same, while the window stays open.
Change AStoring(int count) {
  Change change = AClose(count);
  change.make = [](TestDesk& desk) { desk.Desk().StorePending(); };
  return change;
}

// An edit is taken back.
Change AnUndo(int count) {
  const Change edit = AnEdit(count);
  return {.old_draws = edit.new_draws,
          .new_draws = edit.old_draws,
          .make = [](TestDesk& desk) { desk.Desk().Undo(); },
          .start_from = edit.old_draws,
          .before = edit.make};
}

// The draws of the database of a desk, read by a process that has just begun.
std::vector<store::DrawRecord> DrawsOf(TestDesk& desk) {
  std::vector<store::DrawRecord> draws;
  store::Session session(desk.host_files);
  session.database.Open((desk.folder / kDatabase).string());
  store::WalkFile(session, [&] { draws.push_back(session.current_draw); });
  return draws;
}

// The first draws that the desk knows are these.
void ExpectBegins(TestDesk& desk, const std::vector<store::DrawRecord>& draws) {
  const int count = static_cast<int>(draws.size());
  ASSERT_GE(desk.Main().ListView1.RowCount(), count);
  ASSERT_GE(desk.Main().List7.ListCount(), count);
  ASSERT_GE(desk.Session().UpperBound(), count);
  for (int n = 1; n <= count; ++n) {
    const store::DrawRecord& draw = draws[static_cast<std::size_t>(n - 1)];
    ASSERT_EQ(desk.Main().ListView1.Row(n), main_window::TableRow(draw));
    ASSERT_EQ(desk.Main().List7.Row(n - 1), store::DrawLine(draw));
    desk.Session().ReadDraw(n);
    ASSERT_EQ(desk.Session().current_draw, draw);
  }
}

// The desk starts on these files and shows exactly these draws.
void ExpectOpens(TestDesk& desk, const Files& files, const std::vector<store::DrawRecord>& draws) {
  PutFiles(desk, files);
  StartQuietly(desk);
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  ExpectBegins(desk, draws);
  const int count = static_cast<int>(draws.size());
  EXPECT_EQ(desk.Main().ListView1.RowCount(), count);
  EXPECT_EQ(desk.Session().UpperBound(), count);
}

// What was left behind does no harm to the work that follows.
void ExpectWorksOn(TestDesk& desk, std::vector<store::DrawRecord> draws) {
  draws.push_back(Draw({1, 2, 3, 4, 5, 6, 7}, "We"));
  SaveDraw(desk, draws.back());
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  ASSERT_TRUE(desk.DatabaseBytes() == Encode(draws)) << "a save that follows";
  EditDraw(desk, 10, "98");
  EXPECT_EQ(desk.TakeBoxTexts(), std::vector<std::string>());
  draws[9].b[5] = "98";
  TestDesk again;
  ExpectOpens(again, FilesIn(desk), draws);
}

// Kills a change at each of its moments in turn.
class Kill : public testing::Test {
 protected:
  void KillEverywhere(const Change& change) {
    TestDesk desk(change.start_from);
    StartQuietly(desk);
    change.before(desk);
    const Files files = FilesIn(desk);
    for (int moment = 0; moment < kMostMoments; ++moment) {
      SCOPED_TRACE("killed at moment " + std::to_string(moment));
      PutFiles(desk, files);
      const Ending ending = KillAtMoment(
          moment, [] {},
          [&] {
            change.make(desk);
            return desk.boxes.shown.empty();
          });
      ASSERT_NE(ending, Ending::kFailed);
      Judge(desk, change);
      if (HasFatalFailure()) return;
      if (ending == Ending::kDone) {
        RecordProperty("moments", moment);
        EXPECT_TRUE(DrawsOf(desk) == change.new_draws);
        return;
      }
    }
    FAIL() << "more file calls than anything should need";
  }

  // Looks at what a killed desk has left in its folder.
  void Judge(TestDesk& killed, const Change& change) {
    const auto draws = DrawsOf(killed);
    const bool is_new = draws == change.new_draws;
    ASSERT_TRUE(is_new || draws == change.old_draws) << draws.size() << " draws";
    const Files left = FilesIn(killed);
    ASSERT_EQ(BytesOf(left, kDatabase).size(), draws.size() * kRecordLength);
    (is_new ? saw_new_ : saw_old_) = true;
    saw_earlier_ |= HasEarlier(left);
    EXPECT_FALSE(left.contains(kTemp));
    saw_beside_ |= HasBeside(left);
    // The same files open the same way.
    if (!states_.insert(WithoutProcess(left)).second) return;
    TestDesk desk;
    ExpectOpens(desk, left, draws);
    if (HasFatalFailure()) return;
    ExpectWorksOn(desk, draws);
  }

  bool saw_old_ = false;
  bool saw_new_ = false;
  bool saw_earlier_ = false;
  bool saw_beside_ = false;
  std::set<Files> states_;
};

TEST_F(Kill, ASaveLosesNoDraw) {
  KillEverywhere(ASave(kDraws));
  EXPECT_TRUE(saw_old_ && saw_new_);
  EXPECT_EQ(states_.size(), 2u);
}

TEST_F(Kill, AnEditLosesNoDraw) {
  KillEverywhere(AnEdit(kDraws));
  EXPECT_TRUE(saw_old_ && saw_new_);
  EXPECT_TRUE(saw_earlier_ && saw_beside_);
}

TEST_F(Kill, ACloseLosesNoDraw) {
  KillEverywhere(AClose(kDraws));
  EXPECT_TRUE(saw_old_ && saw_new_);
  EXPECT_TRUE(saw_beside_);
}

TEST_F(Kill, StorePendingLosesNoDraw) {
  KillEverywhere(AStoring(kFewDraws));
  EXPECT_TRUE(saw_old_ && saw_new_);
  EXPECT_TRUE(saw_earlier_ && saw_beside_);
}

TEST_F(Kill, AnUndoLosesNoDraw) {
  KillEverywhere(AnUndo(kFewDraws));
  EXPECT_TRUE(saw_old_ && saw_new_);
  EXPECT_TRUE(saw_beside_);
}

// A start removes the second name of the database that an earlier kill left.
TEST_F(Kill, AStartLosesNoDraw) {
  const auto draws = SampleDraws(kFewDraws);
  const std::string state = "DataBases/Earlier/UK-National-Lottery 2005-12-05 14-30-00.dat";
  bool removed = false;
  for (int moment = 0; moment < kMostMoments; ++moment) {
    SCOPED_TRACE("killed at moment " + std::to_string(moment));
    TestDesk desk(draws);
    std::filesystem::create_directory(desk.folder / "DataBases" / "Earlier");
    std::filesystem::create_hard_link(desk.folder / kDatabase, desk.folder / state);
    const Ending ending = KillAtMoment(
        moment, [] {},
        [&] {
          StartQuietly(desk);
          return desk.boxes.shown.empty();
        });
    ASSERT_NE(ending, Ending::kFailed);
    removed |= !std::filesystem::exists(desk.folder / state);
    EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
    StartQuietly(desk);
    ExpectBegins(desk, draws);
    ExpectWorksOn(desk, draws);
    EXPECT_FALSE(std::filesystem::exists(desk.folder / state));
    if (HasFailure()) return;
    if (ending == Ending::kDone) {
      RecordProperty("moments", moment);
      EXPECT_GT(moment, 20);
      EXPECT_TRUE(removed);
      return;
    }
  }
  FAIL() << "more file calls than anything should need";
}

// Makes the change on this desk in a process that dies as soon as it writes beyond an offset.
void CutOff(TestDesk& desk, const Change& change, std::size_t offset) {
  StartQuietly(desk);
  const auto work = [&] {
    change.make(desk);
    return true;
  };
  ASSERT_EQ(KillBeyondFileSize(static_cast<std::int64_t>(offset), work), Ending::kKilled);
}

TEST_F(Kill, ASaveCutOffInTheMiddleOfItsRecordLeavesTheDrawsBefore) {
  const Change change = ASave(kFewDraws);
  const std::string old_bytes = Encode(change.old_draws);
  for (std::size_t part = 0; part < kRecordLength; ++part) {
    SCOPED_TRACE("killed at byte " + std::to_string(part) + " of the record");
    TestDesk killed(change.old_draws);
    CutOff(killed, change, old_bytes.size() + part);
    ASSERT_EQ(killed.DatabaseBytes(), Encode(change.new_draws).substr(0, old_bytes.size() + part));
    TestDesk desk;
    PutFiles(desk, FilesIn(killed));
    StartQuietly(desk);
    ExpectBegins(desk, change.old_draws);
    if (HasFatalFailure()) return;
    // What is torn does not swallow the draw that is saved next.
    SaveDraw(desk, change.new_draws.back());
    TestDesk later;
    PutFiles(later, FilesIn(desk));
    StartQuietly(later);
    ExpectBegins(later, change.old_draws);
    EXPECT_EQ(DrawsOf(later).back(), change.new_draws.back());
    if (HasFatalFailure()) return;
  }
}

// A kill in the middle of a long write left the beginning of a record in Temp.dat. The next edit
// put it in front of all draws, and most of them could no longer be read.
TEST_F(Kill, AnEditCutOffInTheMiddleOfARecordLeavesNoPartOfIt) {
  const Change change = AnEdit(kFewDraws);
  for (std::size_t part = 0; part < kRecordLength; ++part) {
    SCOPED_TRACE("killed at byte " + std::to_string(part) + " of a record");
    TestDesk killed(change.old_draws);
    CutOff(killed, change, kFewDraws / 2 * kRecordLength + part);
    Judge(killed, change);
    if (HasFatalFailure()) return;
  }
}

}  // namespace
}  // namespace test
