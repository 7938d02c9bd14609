#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/language/error.h"
#include "support/desk_acts.h"
#include "support/failing_disk.h"
#include "support/test_desk.h"

// Another program changed the file of the open database. Whatever it did, and however the desk then
// comes to write, nobody's draws are lost, and the person decides.

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Draws = std::vector<store::DrawRecord>;

constexpr int kDraws = 40;
constexpr std::size_t kRecordLength = 44;
constexpr int kPlace = 8;  // of the draw that is edited or removed
const char* const kChanged =
    "UK-National-Lottery was changed by another program since it was opened. Nothing was saved. "
    "Load it again?";
const char* const kGone =
    "UK-National-Lottery is no longer in its folder. Write the draws that the desk holds there "
    "again?";
const char* const kNotComplete =
    "Not every draw of this database could be read, so none can be changed";
const char* const kOwn = "UK-National-Lottery own 2005-12-05 14-30-00.dat";
const char* const kOwnTold =
    "The draws that the desk held are kept as UK-National-Lottery own 2005-12-05 14-30-00.dat";

std::filesystem::path PathOf(const TestDesk& desk) {
  return desk.folder / "DataBases" / desk.database;
}

void Write(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

void ReplaceByRename(const TestDesk& desk, const std::string& bytes) {
  const std::filesystem::path beside = desk.folder / "DataBases" / "foreign";
  Write(beside, bytes);
  std::filesystem::rename(beside, PathOf(desk));
}

// Bytes from an offset on, into the file as it stands.
void WriteInPlace(const TestDesk& desk, std::streamoff offset, const std::string& bytes) {
  std::fstream file(PathOf(desk), std::ios::binary | std::ios::in | std::ios::out);
  file.seekp(offset) << bytes;
}

store::DrawRecord ForeignDraw() { return Draw({41, 42, 43, 44, 45, 46, 47}, "We", "07/12/05"); }

// What another program does to the file.
struct Outside {
  enum class Result { kSame, kOther, kNone };
  const char* name;
  Result result;
  std::function<void(const TestDesk&)> act;
};

const std::vector<Outside>& Outsides() {
  using Result = Outside::Result;
  static const std::vector<Outside> all{
      {"appended to", Result::kOther,
       [](const TestDesk& desk) {
         std::ofstream(PathOf(desk), std::ios::binary | std::ios::app) << Encode({ForeignDraw()});
       }},
      {"cut", Result::kOther,
       [](const TestDesk& desk) {
         std::filesystem::resize_file(PathOf(desk), 25 * kRecordLength);
       }},
      {"rewritten in place at the same length", Result::kOther,
       [](const TestDesk& desk) {
         WriteInPlace(desk, 20 * std::streamoff{kRecordLength}, Encode({ForeignDraw()}));
       }},
      {"replaced by other bytes", Result::kOther,
       [](const TestDesk& desk) {
         Draws draws = SampleDraws(kDraws);
         draws[20] = ForeignDraw();
         ReplaceByRename(desk, Encode(draws));
       }},
      {"replaced by the same bytes", Result::kSame,
       [](const TestDesk& desk) { ReplaceByRename(desk, desk.DatabaseBytes()); }},
      {"touched", Result::kSame,
       [](const TestDesk& desk) {
         const timespec times[] = {{.tv_sec = 1, .tv_nsec = 0}, {.tv_sec = 1, .tv_nsec = 0}};
         ASSERT_EQ(utimensat(AT_FDCWD, PathOf(desk).c_str(), times, 0), 0);
       }},
      {"deleted", Result::kNone,
       [](const TestDesk& desk) { std::filesystem::remove(PathOf(desk)); }},
      {"moved away", Result::kNone,
       [](const TestDesk& desk) {
         std::filesystem::rename(PathOf(desk), desk.folder / "away.dat");
       }},
  };
  return all;
}

// How the desk comes to write: what is prepared before the file is changed, the act itself, and the
// draws that it makes of those that were read.
struct Way {
  const char* name;
  std::function<void(TestDesk&)> prepare;
  std::function<void(TestDesk&)> act;
  std::function<void(Draws&)> on_draws;
  bool is_close = false;
  bool is_in_table = false;  // the desk's own rows have the change already
  std::function<void(TestDesk&)> expect_typed = [](TestDesk&) {};
};

const store::DrawRecord& Added() {
  static const store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "Sa", "12/10/05");
  return draw;
}

void GiveBall99(Draws& draws) { draws[kPlace - 1].b[5] = "99"; }
void EraseDraw(Draws& draws) { draws.erase(draws.begin() + kPlace - 1); }
void CloseMain(TestDesk& desk) { desk.User().Close(desk.Main()); }
void RemoveDraw(TestDesk& desk) { RemoveRow(desk, kPlace); }

const Way kEdit{
    .name = "an edit",
    .prepare = [](TestDesk& desk) { TypeEdit(desk, kPlace, "99"); },
    .act = [](TestDesk& desk) { desk.User().Click(desk.Main().cmdedit); },
    .on_draws = GiveBall99,
    .expect_typed =
        [](TestDesk& desk) {
          EXPECT_EQ(desk.Main().TxtBall06.Text(), "99");
          EXPECT_EQ(desk.Main().txtDate.Text(), SampleDraws(kPlace).back().date);
        },
};

const Way kAdd{
    .name = "an added draw",
    .prepare =
        [](TestDesk& desk) {
          desk.User().Click(desk.Main().cmdAdd);
          desk.User().Paste(desk.Main().TxtBall01, "01 02 03 04 05 06 07 10/12/05");
        },
    .act = [](TestDesk& desk) { desk.User().Click(desk.Main().cmdSave); },
    .on_draws = [](Draws& draws) { draws.push_back(Added()); },
    .expect_typed =
        [](TestDesk& desk) {
          EXPECT_EQ(desk.Main().TxtBall01.Text(), "01");
          EXPECT_EQ(desk.Main().TxtBallBB.Text(), "07");
          EXPECT_EQ(desk.Main().txtDate.Text(), "12/10/05");
        },
};

const Way kRowEdit{.name = "a row edit and a close",
                   .prepare = [](TestDesk& desk) { EditRow(desk, kPlace, "99"); },
                   .act = CloseMain,
                   .on_draws = GiveBall99,
                   .is_close = true,
                   .is_in_table = true};

const Way kRemoval{.name = "a removal and a close",
                   .prepare = RemoveDraw,
                   .act = CloseMain,
                   .on_draws = EraseDraw,
                   .is_close = true,
                   .is_in_table = true};

const Way kStorePending{.name = "a removal and StorePending",
                        .prepare = RemoveDraw,
                        .act = [](TestDesk& desk) { desk.Desk().StorePending(); },
                        .on_draws = EraseDraw,
                        .is_in_table = true};

Draws DrawsAfter(const Way& way) {
  Draws draws = SampleDraws(kDraws);
  way.on_draws(draws);
  return draws;
}

std::optional<std::string> OwnBytes(const TestDesk& desk) {
  const std::string name = std::string("DataBases/") + kOwn;
  if (!std::filesystem::exists(desk.folder / name)) return std::nullopt;
  return desk.ReadFile(name);
}

// One case of the matrix.
class OutsideChange : public testing::Test {
 protected:
  // Each thing that can be done to the file, and each answer, for one way to write.
  void ExpectNothingLost(const Way& way) {
    int cases = 0;
    for (const Outside& outside : Outsides()) {
      for (const base::Answer answer : {base::Answer::kYes, base::Answer::kNo}) {
        const bool yes = answer == base::Answer::kYes;
        SCOPED_TRACE(std::string("the file was ") + outside.name + ", then " + way.name + ", " +
                     (yes ? "yes" : "no"));
        Play(way, outside, answer);
        ++cases;
      }
    }
    RecordProperty("cases", cases);
    EXPECT_EQ(cases, 16);
  }

 private:
  void Play(const Way& way, const Outside& outside, base::Answer answer) {
    const bool yes = answer == base::Answer::kYes;
    TestDesk desk;
    desk.clock.now = {2005, 12, 5, 14, 30, 0};
    StartQuietly(desk);
    way.prepare(desk);
    outside.act(desk);
    const bool is_there = std::filesystem::exists(PathOf(desk));
    const std::string foreign = desk.DatabaseBytes();
    const bool asks = outside.result != Outside::Result::kSame;
    if (asks) desk.boxes.answers = {answer};
    way.act(desk);

    Texts told;
    if (asks) told.push_back(is_there ? kChanged : kGone);
    const bool keeps_own = asks && !yes;
    if (keeps_own && way.is_close) told.push_back(kOwnTold);
    EXPECT_EQ(desk.TakeBoxTexts(), told);
    const bool stored = !asks || (!is_there && yes);
    const std::string expected = stored ? Encode(DrawsAfter(way)) : foreign;
    ExpectFile(desk, is_there || stored, expected);
    if (!stored && !way.is_close) way.expect_typed(desk);
    if (asks && yes && is_there && !way.is_close) ExpectShows(desk, foreign);

    desk.Desk().Stop();
    EXPECT_EQ(desk.TakeBoxTexts(), keeps_own && !way.is_close ? Texts{kOwnTold} : Texts());
    ExpectFile(desk, is_there || stored, expected);
    const auto own = OwnBytes(desk);
    EXPECT_EQ(own.has_value(), keeps_own);
    const Draws held = way.is_in_table ? DrawsAfter(way) : SampleDraws(kDraws);
    EXPECT_EQ(own.value_or(Encode(held)), Encode(held));
    if (std::filesystem::exists(desk.folder / "away.dat")) {
      EXPECT_EQ(desk.ReadFile("away.dat"), Encode(SampleDraws(kDraws)));
    }
  }

  void ExpectFile(const TestDesk& desk, bool exists, const std::string& bytes) {
    EXPECT_EQ(std::filesystem::exists(PathOf(desk)), exists);
    EXPECT_TRUE(desk.DatabaseBytes() == bytes) << desk.DatabaseBytes().size() << " bytes";
  }

  // The lists are those of the file as it was loaded again.
  void ExpectShows(TestDesk& desk, const std::string& bytes) {
    std::string lines;
    for (const std::string& line : desk.Main().List7.Rows()) {
      store::DrawRecord draw;
      store::ParseDrawLine(line, draw);
      lines += store::EncodeRecord(draw);
    }
    EXPECT_EQ(lines, bytes);
    EXPECT_EQ(desk.Main().ListView1.RowCount(), desk.Main().List7.ListCount());
  }
};

TEST_F(OutsideChange, BeforeAnEditLosesNobodysDraws) { ExpectNothingLost(kEdit); }
TEST_F(OutsideChange, BeforeAnAddedDrawLosesNobodysDraws) { ExpectNothingLost(kAdd); }
TEST_F(OutsideChange, BeforeARowEditIsStoredLosesNobodysDraws) { ExpectNothingLost(kRowEdit); }
TEST_F(OutsideChange, BeforeARemovalIsStoredLosesNobodysDraws) { ExpectNothingLost(kRemoval); }
TEST_F(OutsideChange, BeforeStorePendingLosesNobodysDraws) { ExpectNothingLost(kStorePending); }

// --- After it was loaded again

// A file that another program changed while a change of the draw at kPlace was typed. The person
// has had it loaded again, and the change still stands in the boxes.
class LoadedAgain : public testing::Test {
 protected:
  void Load(const Draws& foreign) {
    StartQuietly(desk_);
    TypeEdit(desk_, kPlace, "99");
    ReplaceByRename(desk_, Encode(foreign));
    desk_.boxes.answers = {base::Answer::kYes};
    desk_.User().Click(desk_.Main().cmdedit);
    EXPECT_EQ(desk_.TakeBoxTexts(), Texts{kChanged});
    EXPECT_EQ(desk_.DatabaseBytes(), Encode(foreign));
    EXPECT_EQ(desk_.Main().TxtBall06.Text(), "99");
    EXPECT_EQ(desk_.Main().cmdedit.Caption(), "Edit");
    EXPECT_FALSE(desk_.Session().data_base_changed);
  }

  void PressEditAgain() {
    desk_.User().Click(desk_.Main().cmdedit);
    EXPECT_EQ(desk_.Main().TxtBall06.Text(), "99");
    desk_.User().Click(desk_.Main().cmdedit);
    EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
  }

  TestDesk desk_;
};

TEST_F(LoadedAgain, TheEditGoesToTheDrawThatItWasTypedFor) {
  Draws draws = SampleDraws(kDraws);
  draws.erase(draws.begin());
  Load(draws);
  PressEditAgain();
  draws[kPlace - 2].b[5] = "99";
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
  desk_.Desk().Stop();
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

TEST_F(LoadedAgain, TheEditFindsItsDrawBehindNewOnes) {
  Draws draws = SampleDraws(kDraws);
  draws.insert(draws.begin(), {ForeignDraw(), ForeignDraw()});
  Load(draws);
  PressEditAgain();
  draws[kPlace + 1].b[5] = "99";
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

TEST_F(LoadedAgain, RemoveTakesTheDrawThatTheEditWasTypedFor) {
  Draws draws = SampleDraws(kDraws);
  draws.erase(draws.begin());
  Load(draws);
  desk_.User().Click(desk_.Main().Command18);
  desk_.Desk().Stop();
  draws.erase(draws.begin() + kPlace - 2);
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

// Twins in the file are told apart by their place alone.
TEST_F(LoadedAgain, OfTwinsTheOneInThePlaceIsMeant) {
  Draws draws = SampleDraws(kDraws);
  draws[2] = draws[kPlace - 1];
  Load(draws);
  PressEditAgain();
  draws[kPlace - 1].b[5] = "99";
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

TEST_F(LoadedAgain, ADrawThatIsNoLongerThereCannotBeEdited) {
  Draws draws = SampleDraws(kDraws);
  draws.erase(draws.begin() + kPlace - 1);
  Load(draws);
  EXPECT_FALSE(desk_.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk_.Main().Command18.Enabled());
  EXPECT_TRUE(desk_.Main().cmdAdd.Enabled());
  desk_.Desk().Stop();
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

TEST_F(LoadedAgain, ADrawThatWasChangedItselfCannotBeEdited) {
  Draws draws = SampleDraws(kDraws);
  draws[kPlace - 1].b[0] = "49";
  Load(draws);
  EXPECT_FALSE(desk_.Main().cmdedit.Enabled());
  EXPECT_FALSE(desk_.Main().Command18.Enabled());
}

TEST_F(LoadedAgain, OnlyWhatWasLoadedCanBeTakenBack) {
  Draws draws = SampleDraws(kDraws);
  draws.erase(draws.begin());
  StartQuietly(desk_);
  EditDraw(desk_, 3, "98");
  Load(draws);
  EXPECT_EQ(desk_.Desk().Undo(), "");
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
}

TEST_F(LoadedAgain, ASecondSaveAddsTheDrawOnce) {
  Draws draws = SampleDraws(kDraws);
  draws.erase(draws.begin());
  StartQuietly(desk_);
  TypeDraw(desk_, Added());
  ReplaceByRename(desk_, Encode(draws));
  desk_.boxes.answers = {base::Answer::kYes};
  desk_.User().Click(desk_.Main().cmdSave);
  EXPECT_EQ(desk_.TakeBoxTexts(), Texts{kChanged});
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
  desk_.User().Click(desk_.Main().cmdSave);
  EXPECT_EQ(desk_.TakeBoxTexts(), Texts());
  draws.push_back(Added());
  EXPECT_EQ(desk_.DatabaseBytes(), Encode(draws));
  EXPECT_EQ(desk_.Main().ListView1.RowCount(), kDraws);
}

// What was read of it before the disk failed is not all of it: nothing may be changed then.
TEST(LoadedAgainInPart, ADatabaseIsLeftAlone) {
  for (int failing = 1;; ++failing) {
    SCOPED_TRACE("operation " + std::to_string(failing));
    TestDesk desk;
    FailingDisk disk(desk.host_files);
    desk.files = &disk;
    StartQuietly(desk);
    TypeDraw(desk, Added());
    const std::string foreign = Encode(SampleDraws(39));
    ReplaceByRename(desk, foreign);
    desk.boxes.answers = {base::Answer::kYes};
    desk.boxes.on_ask = [&] {
      if (desk.boxes.shown.back().text == kChanged) {
        disk.FailFromNow(failing, base::Error(base::kPathAccess));
      }
    };
    desk.User().Click(desk.Main().cmdSave);
    const bool loaded = desk.Session().database.IsComplete();
    EXPECT_EQ(desk.TakeBoxTexts().size(), loaded ? 1u : 2u);
    EXPECT_EQ(desk.Main().TxtBall01.Text(), "01");
    if (!disk.HasFailed()) {
      EXPECT_GT(failing, 2) << "no operation was reached";
      return;
    }
    if (loaded) continue;  // only what the desk had read before could not be kept
    for (base::Button* button :
         {&desk.Main().cmdAdd, &desk.Main().cmdedit, &desk.Main().Command18}) {
      EXPECT_FALSE(button->Enabled()) << button->Name();
      EXPECT_EQ(button->ToolTipText(), kNotComplete);
    }
    desk.User().Click(desk.Main().cmdSave);
    EXPECT_EQ(desk.TakeBoxTexts(), Texts{kNotComplete});
    desk.Desk().Stop();
    EXPECT_EQ(desk.DatabaseBytes(), foreign);
  }
}

// --- After the person left it alone

TEST_F(OutsideChange, IsAskedAboutAtEachNewChange) {
  TestDesk desk;
  StartQuietly(desk);
  const std::string foreign = Encode(SampleDraws(39));
  ReplaceByRename(desk, foreign);
  desk.boxes.answers = {base::Answer::kNo, base::Answer::kNo};
  EditDraw(desk, kPlace, "99");
  EditDraw(desk, kPlace, "98");
  EXPECT_EQ(desk.TakeBoxTexts(), (Texts{kChanged, kChanged}));
  EXPECT_EQ(desk.DatabaseBytes(), foreign);
  desk.Desk().Stop();
  EXPECT_EQ(desk.boxes.shown.size(), 1u);
}

TEST_F(OutsideChange, ThatWasUndoneKeepsNoOwnRows) {
  TestDesk desk;
  StartQuietly(desk);
  ReplaceByRename(desk, Encode(SampleDraws(39)));
  desk.boxes.answers = {base::Answer::kNo};
  EditDraw(desk, kPlace, "99");
  EXPECT_EQ(desk.TakeBoxTexts(), Texts{kChanged});
  ReplaceByRename(desk, Encode(SampleDraws(kDraws)));
  RemoveDraw(desk);
  desk.Desk().Stop();
  EXPECT_EQ(desk.TakeBoxTexts(), Texts());
  Draws draws = SampleDraws(kDraws);
  EraseDraw(draws);
  EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
}

TEST_F(OutsideChange, OwnRowsOfTheSameSecondGetANumber) {
  TestDesk desk;
  desk.clock.now = {2005, 12, 5, 14, 30, 0};
  StartQuietly(desk);
  Write(desk.folder / "DataBases" / kOwn, "other rows");
  RemoveDraw(desk);
  ReplaceByRename(desk, Encode(SampleDraws(39)));
  desk.boxes.answers = {base::Answer::kNo};
  desk.Desk().Stop();
  EXPECT_EQ(desk.TakeBoxTexts(),
            (Texts{kChanged,
                   "The draws that the desk held are kept as UK-National-Lottery own 2005-12-05 "
                   "14-30-00 (2).dat"}));
  EXPECT_EQ(OwnBytes(desk), "other rows");
  Draws draws = SampleDraws(kDraws);
  EraseDraw(draws);
  EXPECT_EQ(desk.ReadFile("DataBases/UK-National-Lottery own 2005-12-05 14-30-00 (2).dat"),
            Encode(draws));
}

// The person answered yes, but meanwhile the file was there again.
TEST_F(OutsideChange, ThatBringsTheFileBackWhileTheDeskAsksIsNotWrittenOver) {
  for (const Way* way : {&kEdit, &kAdd, &kRowEdit, &kRemoval, &kStorePending}) {
    for (const bool same : {false, true}) {
      SCOPED_TRACE(std::string(way->name) + (same ? ", the same bytes" : ", other bytes"));
      TestDesk desk;
      StartQuietly(desk);
      way->prepare(desk);
      const std::string back = Encode(SampleDraws(same ? kDraws : 39));
      std::filesystem::remove(PathOf(desk));
      desk.boxes.on_ask = [&] {
        if (desk.boxes.shown.back().text == kGone) Write(PathOf(desk), back);
      };
      way->act(desk);
      EXPECT_EQ(desk.TakeBoxTexts(), same ? Texts{kGone} : (Texts{kGone, kChanged}));
      desk.Desk().Stop();
      EXPECT_EQ(desk.TakeBoxTexts(), Texts());
      EXPECT_EQ(desk.DatabaseBytes(), same ? Encode(DrawsAfter(*way)) : back);
    }
  }
}

// A folder or a pipe that took the file's place is nothing to write to.
TEST_F(OutsideChange, WhatIsNoFileStays) {
  TestDesk desk;
  StartQuietly(desk);
  TypeEdit(desk, kPlace, "99");
  std::filesystem::remove(PathOf(desk));
  ASSERT_EQ(mkfifo(PathOf(desk).c_str(), 0600), 0);
  desk.boxes.answers = {base::Answer::kYes};
  desk.User().Click(desk.Main().cmdedit);
  const Texts told = desk.TakeBoxTexts();
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told[0], kGone);
  EXPECT_NE(told[1].find("Error Number [75] "), std::string::npos);
  EXPECT_TRUE(std::filesystem::is_fifo(PathOf(desk)));
  EXPECT_EQ(desk.Main().ListView1.Cell(kPlace, 5), SampleDraws(kPlace).back().b[5]);
}

}  // namespace
}  // namespace test
