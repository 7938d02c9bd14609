#include "main/undo.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>

#include "base/language/error.h"
#include "main/draw_lists.h"
#include "support/desk_acts.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<base::ListView::Cells>;

const store::DrawRecord& Added() {
  static const store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "Sa", "07/10/15");
  return draw;
}

// A record that an older program wrote: nothing of it may come out otherwise.
std::vector<store::DrawRecord> OddDraws() {
  auto draws = SampleDraws(40);
  draws[4].spare = 7;
  draws[11].day = "Wednesday";
  draws[12].b[3] = "7";
  return draws;
}

class Undo : public testing::Test {
 protected:
  std::string TakeBack() { return desk_.Desk().Undo(); }
  void ExpectFile(const std::vector<store::DrawRecord>& draws) {
    EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
    EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
  }
  void ExpectAllShown(std::size_t rows) {
    EXPECT_EQ(desk_.Main().ListView1.RowCount(), static_cast<int>(rows));
    EXPECT_EQ(desk_.Main().List7.ListCount(), static_cast<int>(rows));
  }

  const std::vector<store::DrawRecord> odd_ = OddDraws();
  TestDesk desk_{odd_};
};

// --- One change of each kind

TEST_F(Undo, OfNothingSaysNothing) {
  StartQuietly(desk_);
  EXPECT_EQ(TakeBack(), "");
  ExpectFile(odd_);
}

TEST_F(Undo, OfASavedDraw) {
  StartQuietly(desk_);
  SaveDraw(desk_, Added());
  EXPECT_EQ(TakeBack(), "Undone: Draw of 07/10/15 saved");
  ExpectFile(odd_);
  ExpectAllShown(40);
  EXPECT_EQ(TakeBack(), "");
  SaveDraw(desk_, Added());
  auto draws = odd_;
  draws.push_back(Added());
  ExpectFile(draws);
}

TEST_F(Undo, OfAnEdit) {
  StartQuietly(desk_);
  EditDraw(desk_, 3, "98");
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 changed");
  ExpectFile(odd_);
  EXPECT_EQ(desk_.Main().TxtBall06.Text(), odd_[2].b[5]);
  EXPECT_EQ(desk_.Main().List7.Row(2), store::DrawLine(odd_[2]));
  EXPECT_EQ(desk_.Main().ListView1.SelectedIndex(), 3);
}

TEST_F(Undo, OfAnEditTellsTheDateThatWasStored) {
  StartQuietly(desk_);
  desk_.User().Pick(desk_.Main().List7, 2);
  desk_.User().Click(desk_.Main().cmdedit);
  desk_.User().Paste(desk_.Main().txtDate, "04/01/001");
  desk_.User().Click(desk_.Main().cmdedit);
  EXPECT_EQ(TakeBack(), "Undone: Draw of 04/01/00 changed");
  ExpectFile(odd_);
}

TEST_F(Undo, OfARowEdit) {
  StartQuietly(desk_);
  EditRow(desk_, 3, "98");
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 changed");
  EXPECT_EQ(desk_.Main().ListView1.Cell(3, 5), odd_[2].b[5]);
  EXPECT_TRUE(desk_.Session().database.pending.empty());
  desk_.User().Close(desk_.Main());
  EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
}

TEST_F(Undo, ShowsADrawThatWasLookedAtWhileAdding) {
  StartQuietly(desk_);
  EditDraw(desk_, 3, "98");
  desk_.User().Click(desk_.Main().cmdAdd);
  desk_.User().Pick(desk_.Main().ListView1, 3);
  EXPECT_EQ(desk_.Main().TxtBall06.Text(), "98");
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 changed");
  EXPECT_EQ(desk_.Main().TxtBall06.Text(), odd_[2].b[5]);
}

TEST_F(Undo, OfARemoval) {
  StartQuietly(desk_);
  RemoveRow(desk_, 3);
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 removed");
  ExpectFile(odd_);
  ExpectAllShown(40);
  EXPECT_EQ(desk_.Main().ListView1.SelectedIndex(), 3);
  EXPECT_EQ(desk_.Main().txtDate.Text(), "03/01/00");
  EXPECT_TRUE(desk_.Main().Command18.Enabled());
}

TEST_F(Undo, OfARemovalThatWasStored) {
  StartQuietly(desk_);
  RemoveRow(desk_, 3);
  desk_.Desk().StorePending();
  EXPECT_EQ(desk_.DatabaseBytes().size(), 39u * 44);
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 removed");
  ExpectFile(odd_);
  ExpectAllShown(40);
}

TEST_F(Undo, OfADatabasesFirstDraw) {
  desk_.WriteDatabase("");
  StartQuietly(desk_);
  SaveDraw(desk_, Added());
  desk_.User().Pick(desk_.Main().List7, 1);
  desk_.User().Click(desk_.Main().cmdedit);
  desk_.Main().TxtBall06.SetText("49");
  desk_.User().Click(desk_.Main().cmdedit);
  RemoveRow(desk_, 2);
  desk_.Desk().StorePending();
  ExpectFile({});
  EXPECT_EQ(TakeBack(), "Undone: Draw of 07/10/15 removed");
  auto edited = Added();
  edited.b[5] = "49";
  ExpectFile({edited});
  EXPECT_EQ(TakeBack(), "Undone: Draw of 07/10/15 changed");
  ExpectFile({Added()});
  EXPECT_EQ(TakeBack(), "Undone: Draw of 07/10/15 saved");
  ExpectFile({});
  EXPECT_EQ(TakeBack(), "");
  SaveDraw(desk_, Added());
  ExpectFile({Added()});
}

// The blank row of a database that began empty went at the activation, and every draw stood one
// place further up than the log of changes had it: another one was removed.
TEST_F(Undo, KnowsEachDrawWhenTheBlankRowIsGone) {
  desk_.WriteDatabase("");
  StartQuietly(desk_);
  const auto draws = SampleDraws(3);
  for (const store::DrawRecord& draw : draws) SaveDraw(desk_, draw);
  RemoveRow(desk_, 2);
  RemoveRow(desk_, 2);
  desk_.Desk().StorePending();
  ExpectFile({draws[2]});
  desk_.User().Switch(desk_.Main());
  EXPECT_EQ(TakeBack(), "Undone: Draw of 02/01/00 removed");
  ExpectFile(draws);
  EXPECT_EQ(desk_.Main().txtDate.Text(), draws[1].date);
  desk_.Desk().StorePending();
  ExpectFile({draws[1], draws[2]});
}

TEST_F(Undo, KnowsEachDrawWhenTheBlankRowHasCome) {
  const auto draws = SampleDraws(2);
  desk_.WriteDatabase(Encode(draws));
  StartQuietly(desk_);
  RemoveRow(desk_, 1);
  RemoveRow(desk_, 1);
  desk_.Desk().StorePending();
  ExpectFile({});
  EXPECT_EQ(TakeBack(), "Undone: Draw of 02/01/00 removed");
  ExpectFile(draws);
  EXPECT_EQ(desk_.Main().txtDate.Text(), draws[1].date);
  desk_.Desk().StorePending();
  ExpectFile({draws[1]});
}

// A torn record at the end was made whole by the save; it is torn again, byte for byte.
TEST_F(Undo, OfADrawBehindATornOne) {
  const std::string whole = Encode(odd_);
  for (const std::size_t cut : {1, 9, 10, 30, 42, 43}) {
    TestDesk desk;
    desk.WriteDatabase(whole.substr(0, whole.size() - cut));
    StartQuietly(desk);
    SaveDraw(desk, Added());
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    EXPECT_EQ(desk.Desk().Undo(), "Undone: Draw of 07/10/15 saved");
    EXPECT_EQ(desk.DatabaseBytes(), whole.substr(0, whole.size() - cut)) << cut << " bytes short";
  }
}

TEST_F(Undo, LeavesADrawThatIsBeingTyped) {
  StartQuietly(desk_);
  EditDraw(desk_, 3, "98");
  TypeDraw(desk_, Added());
  EXPECT_EQ(TakeBack(), "Undone: Draw of 03/01/00 changed");
  EXPECT_EQ(desk_.Main().txtDate.Text(), "07/10/15");
  EXPECT_EQ(desk_.Main().TxtBall01.Text(), "01");
  EXPECT_FALSE(desk_.Main().cmdedit.Enabled());
  desk_.User().Click(desk_.Main().cmdSave);
  auto draws = odd_;
  draws.push_back(Added());
  ExpectFile(draws);
}

TEST_F(Undo, AfterTheWindowCameUpAgainSaysNothing) {
  StartQuietly(desk_);
  EditDraw(desk_, 3, "98");
  desk_.User().Close(desk_.Main());
  EXPECT_EQ(TakeBack(), "");
  const std::string edited = desk_.DatabaseBytes();
  desk_.User().Choose(desk_.Frame().MnuMainWindow);
  EXPECT_EQ(TakeBack(), "");
  EXPECT_EQ(desk_.DatabaseBytes(), edited);
}

// --- Changes of every kind in any order

Rows RowsOf(const std::string& bytes) {
  Rows rows;
  store::DrawRecord draw;
  for (std::size_t at = 0; at < bytes.size(); at = store::DecodeRecord(bytes, at, draw).offset) {
    store::DecodeRecord(bytes, at, draw);
    rows.push_back(main_window::TableRow(draw));
  }
  return rows;
}

// What the file and the table held before a change that can be taken back.
struct Before {
  std::string bytes;
  Rows rows;
  bool is_pending = false;  // the change waited in the table
  int stored = 0;           // how often StorePending had written by then
};

// Plays changes at random and takes them back at random.
class RandomChanges {
 public:
  RandomChanges(TestDesk& desk, unsigned seed) : desk_(desk), random_(seed) {}

  void Play(int steps) {
    for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
      SCOPED_TRACE("step " + std::to_string(step));
      PlayOne();
      ExpectDrawOfTheBoxes();
      EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
    }
    while (!befores_.empty() && !testing::Test::HasFailure()) TakeBack();
    TakeBack();
  }
  int TakenBack() const { return taken_back_; }

 private:
  int Any(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  int AnyRow() { return Table().RowCount() == 0 ? 0 : 1 + Any(Table().RowCount()); }
  std::string AnyBall() { return std::to_string(10 + Any(89)); }
  base::ListView& Table() { return desk_.Main().ListView1; }
  bool IsBlank(int row) { return Table().Key(row) == store::OpenDatabase::kBlankPlace; }

  // The rows but for the blank one that an empty database has.
  Rows DrawRows() {
    Rows rows;
    for (int row = 1; row <= Table().RowCount(); ++row) {
      if (!IsBlank(row)) rows.push_back(Table().Row(row));
    }
    return rows;
  }

  // What an edit would replace is the draw that stands in the boxes; each has its own date.
  void ExpectDrawOfTheBoxes() {
    if (!desk_.Main().cmdedit.Enabled()) return;
    const int row = Table().RowWithKey(desk_.Session().shown_place);
    EXPECT_EQ(Table().Cell(row, 7), desk_.Main().txtDate.Text());
  }

  std::string NextDate() {
    const auto two_digits = [](int number) {
      return (number < 10 ? "0" : "") + std::to_string(number);
    };
    const int number = saved_++;
    return two_digits(number % 28 + 1) + "/" + two_digits(number / 28 % 12 + 1) + "/05";
  }

  void PlayOne() {
    switch (Any(10)) {
      case 0:
      case 1:
        return Save();
      case 2:
      case 3:
        return Edit();
      case 4:
        return ChangeRow();
      case 5:
      case 6:
        return Remove();
      case 7:
        return Any(3) == 0 ? Activate() : StorePending();
      default:
        return TakeBack();
    }
  }

  Before Now(bool is_pending) { return {desk_.DatabaseBytes(), DrawRows(), is_pending, stored_}; }

  void Save() {
    befores_.push_back(Now(false));
    SaveDraw(desk_, Draw({1, 2, 3, 4, 5, 10 + Any(89), Any(50)}, "Sa", NextDate()));
  }

  void Edit() {
    base::ListBox& lines = desk_.Main().List7;
    const int line = Any(lines.ListCount());
    if (lines.Key(line) == store::OpenDatabase::kBlankPlace) return;
    desk_.User().Pick(lines, line);
    if (!desk_.Main().cmdedit.Enabled()) return;  // it was removed
    Before before = Now(false);
    desk_.User().Click(desk_.Main().cmdedit);
    if (Any(4) != 0) desk_.Main().TxtBall06.SetText(AnyBall());
    desk_.User().Click(desk_.Main().cmdedit);
    // Stored as it lay in the file, it only gives up what waited in the table.
    before.is_pending = desk_.DatabaseBytes() == before.bytes;
    if (!before.is_pending || DrawRows() != before.rows) befores_.push_back(before);
  }

  void ChangeRow() {
    const int row = AnyRow();
    const std::string ball = AnyBall();
    if (row == 0 || IsBlank(row) || Table().Cell(row, 5) == ball) return;
    befores_.push_back(Now(true));
    EditRow(desk_, row, ball);
  }

  void Remove() {
    const int row = AnyRow();
    const bool is_last = Table().RowCount() == 1;
    if (row == 0 || (is_last && IsBlank(row))) return;
    if (!IsBlank(row)) befores_.push_back(Now(true));
    RemoveRow(desk_, row);
    if (is_last) StorePending();
  }

  void StorePending() {
    const std::string before = desk_.DatabaseBytes();
    const Rows rows = DrawRows();
    desk_.Desk().StorePending();
    EXPECT_EQ(DrawRows(), rows);
    EXPECT_EQ(RowsOf(desk_.DatabaseBytes()), rows);
    if (desk_.DatabaseBytes() != before) ++stored_;
  }

  // Under thirty draws the table is filled anew: what waits there is given up.
  void Activate() {
    const bool forgets = desk_.Main().List7.ListCount() < 30;
    desk_.User().Switch(desk_.Main());
    if (!forgets) return;
    EXPECT_EQ(DrawRows(), RowsOf(desk_.DatabaseBytes()));
    std::erase_if(befores_, [this](const Before& before) {
      return before.is_pending && before.stored == stored_;
    });
    for (Before& before : befores_) {
      if (before.stored == stored_) before.rows = RowsOf(before.bytes);
    }
  }

  void TakeBack() {
    if (befores_.empty()) {
      EXPECT_EQ(desk_.Desk().Undo(), "");
      return;
    }
    const Before before = befores_.back();
    befores_.pop_back();
    EXPECT_TRUE(desk_.Desk().Undo().starts_with("Undone: Draw of "));
    EXPECT_EQ(desk_.DatabaseBytes(), before.bytes);
    EXPECT_EQ(DrawRows(), before.rows);
    stored_ = before.stored;
    ++taken_back_;
  }

  TestDesk& desk_;
  std::mt19937 random_;
  std::vector<Before> befores_;
  int stored_ = 0;
  int saved_ = 0;
  int taken_back_ = 0;
};

TEST_F(Undo, GivesEveryStateBackByteForByte) {
  int taken_back = 0;
  for (const int count : {0, 3, 28, 40}) {
    for (unsigned seed = 1; seed <= 2; ++seed) {
      SCOPED_TRACE(std::to_string(count) + " draws, seed " + std::to_string(seed));
      auto draws = SampleDraws(count);
      for (store::DrawRecord& draw : draws) draw.spare = 7;
      TestDesk desk(draws);
      StartQuietly(desk);
      RandomChanges changes(desk, seed);
      changes.Play(60);
      if (HasFailure()) return;
      taken_back += changes.TakenBack();
    }
  }
  EXPECT_GT(taken_back, 150);
}

// --- Refusals

// In each yield of a procedure in turn.
void ExpectRefusedDuring(const std::function<void(TestDesk&)>& prepare,
                         const std::function<void(TestDesk&)>& procedure) {
  for (int yield = 1;; ++yield) {
    SCOPED_TRACE("in yield " + std::to_string(yield));
    TestDesk desk;
    desk.may_leave_unused = true;
    StartQuietly(desk);
    RemoveRow(desk, 3);
    prepare(desk);
    bool reached = false;
    desk.pump.At(yield, [&] {
      reached = true;
      const std::string bytes = desk.DatabaseBytes();
      const Rows rows = desk.Main().ListView1.Rows();
      EXPECT_EQ(desk.Desk().Undo(), "");
      EXPECT_EQ(desk.DatabaseBytes(), bytes);
      EXPECT_EQ(desk.Main().ListView1.Rows(), rows);
    });
    procedure(desk);
    for (const std::string& text : desk.TakeBoxTexts()) {
      EXPECT_EQ(text, "This will start a new scan, continue.");
    }
    EXPECT_TRUE(desk.Desk().Undo().starts_with("Undone: Draw of "));
    if (!reached) {
      EXPECT_GT(yield, 1) << "no yield was reached";
      return;
    }
  }
}

TEST_F(Undo, IsRefusedWhileAnEditRuns) {
  ExpectRefusedDuring([](TestDesk& desk) { TypeEdit(desk, 5, "97"); },
                      [](TestDesk& desk) { desk.User().Click(desk.Main().cmdedit); });
}

TEST_F(Undo, IsRefusedWhileASaveRuns) {
  ExpectRefusedDuring([](TestDesk& desk) { TypeDraw(desk, Added()); },
                      [](TestDesk& desk) { desk.User().Click(desk.Main().cmdSave); });
}

TEST_F(Undo, IsRefusedWhileTheWindowIsActivated) {
  ExpectRefusedDuring([](TestDesk&) {}, [](TestDesk& desk) { desk.User().Switch(desk.Main()); });
}

TEST_F(Undo, IsRefusedWhileAScanRuns) {
  ExpectRefusedDuring([](TestDesk&) {},
                      [](TestDesk& desk) { desk.User().Click(desk.Main().CmdScan); });
}

TEST_F(Undo, ThatTheDiskRefusesChangesNothing) {
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    StartQuietly(desk);
    EditDraw(desk, 3, "98");
    const std::string edited = desk.DatabaseBytes();
    const Rows rows = desk.Main().ListView1.Rows();
    disk.FailFromNow(failing, base::Error(base::kDiskFull));
    const std::string told = desk.Desk().Undo();
    EXPECT_EQ(told.empty(), !desk.TakeBoxTexts().empty());
    EXPECT_EQ(desk.DatabaseBytes(), told.empty() ? edited : Encode(SampleDraws(40)));
    EXPECT_EQ(desk.Main().ListView1.Rows(), told.empty() ? rows : RowsOf(desk.DatabaseBytes()));
    if (!disk.HasFailed()) {
      EXPECT_GT(failing, 3) << "no operation was reached";
      return;
    }
    EXPECT_EQ(told.empty() ? desk.Desk().Undo() : told, "Undone: Draw of 03/01/00 changed");
    EXPECT_EQ(desk.DatabaseBytes(), Encode(SampleDraws(40)));
  }
}

}  // namespace
}  // namespace test
