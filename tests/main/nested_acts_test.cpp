#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "support/desk_acts.h"
#include "support/test_desk.h"

// What a person does while a procedure of the desk yields, or while one of its boxes is open: it
// waits, is refused, or is done as well. It never does harm to the draws.

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Draws = std::vector<store::DrawRecord>;
using Act = std::function<void(TestDesk&)>;

// Who adds a draw before any is loaded is told so.
const char* const kNotLoadedYet =
    "An error has occured loading the draw results in to QND's buffers\r\n"
    "QND will now attempt to reload the buffers";
constexpr int kEdited = 8;
constexpr int kRemoved = 12;
constexpr int kEditedInside = 6;

const store::DrawRecord& Added() {
  static const store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "Sa", "10/12/05");
  return draw;
}

const store::DrawRecord& AddedInside() {
  static const store::DrawRecord draw = Draw({11, 12, 13, 14, 15, 16, 17}, "We", "14/12/05");
  return draw;
}

void GiveBall(Draws& draws, int place, const char* ball) {
  draws[static_cast<std::size_t>(place - 1)].b[5] = ball;
}

// A procedure that changes draws, and what it makes of them.
struct Procedure {
  const char* name;
  Act prepare;
  Act run;
  std::function<void(Draws&)> on_draws;
  bool closes_window = false;
  // An activation forgets that draws were removed in the table.
  bool can_be_forgotten = false;
};

void Nothing(TestDesk&) {}
void LeaveAsTheyAre(Draws&) {}

const Procedure kLoad{
    .name = "a load", .prepare = Nothing, .run = StartQuietly, .on_draws = LeaveAsTheyAre};
const Procedure kSave{.name = "a save",
                      .prepare =
                          [](TestDesk& desk) {
                            StartQuietly(desk);
                            TypeDraw(desk, Added());
                          },
                      .run = [](TestDesk& desk) { desk.User().Click(desk.Main().cmdSave); },
                      .on_draws = [](Draws& draws) { draws.push_back(Added()); }};
const Procedure kEdit{.name = "an edit",
                      .prepare =
                          [](TestDesk& desk) {
                            StartQuietly(desk);
                            TypeEdit(desk, kEdited, "99");
                          },
                      .run = [](TestDesk& desk) { desk.User().Click(desk.Main().cmdedit); },
                      .on_draws = [](Draws& draws) { GiveBall(draws, kEdited, "99"); }};

void RemoveOne(TestDesk& desk) {
  StartQuietly(desk);
  RemoveRow(desk, kRemoved);
}
void EraseOne(Draws& draws) { draws.erase(draws.begin() + kRemoved - 1); }

const Procedure kClose{.name = "a close",
                       .prepare = RemoveOne,
                       .run = [](TestDesk& desk) { desk.User().Close(desk.Main()); },
                       .on_draws = EraseOne,
                       .closes_window = true,
                       .can_be_forgotten = true};
const Procedure kStorePending{.name = "StorePending",
                              .prepare = RemoveOne,
                              .run = [](TestDesk& desk) { desk.Desk().StorePending(); },
                              .on_draws = EraseOne,
                              .can_be_forgotten = true};

// An act that arrives inside, and what it may make of the draws.
struct Nested {
  const char* name;
  Act act;
  std::function<void(Draws&)> on_draws = LeaveAsTheyAre;
  bool closes_window = false;
  bool quits = false;
  bool activates = false;
};

// What cannot be pressed now is not pressed.
bool Press(TestDesk& desk, base::Control& control) {
  if (!control.Enabled()) return false;
  desk.User().Click(control);
  return desk.Desk().Main() != nullptr;
}

void SaveInside(TestDesk& desk) {
  if (!desk.Desk().Main() || !Press(desk, desk.Main().cmdAdd)) return;
  const store::DrawRecord& draw = AddedInside();
  for (int k = 0; k < store::kBalls; ++k) desk.Main().BallBox(k).SetText(draw.Ball(k));
  desk.Main().TxtBall07.SetText(draw.day);
  desk.Main().txtDate.SetText(draw.date);
  Press(desk, desk.Main().cmdSave);
}

void EditInside(TestDesk& desk) {
  if (!desk.Desk().Main() || desk.Main().ListView1.RowCount() < kEditedInside) return;
  desk.User().Pick(desk.Main().ListView1, kEditedInside);
  if (!Press(desk, desk.Main().cmdedit)) return;
  desk.Main().TxtBall06.SetText("98");
  Press(desk, desk.Main().cmdedit);
}

const std::vector<Nested>& AllNested() {
  static const std::vector<Nested> all{
      {.name = "an activation",
       .act =
           [](TestDesk& desk) {
             if (desk.Desk().Main()) desk.User().Switch(desk.Main());
           },
       .activates = true},
      {.name = "a save",
       .act = SaveInside,
       .on_draws = [](Draws& draws) { draws.push_back(AddedInside()); }},
      {.name = "an edit",
       .act = EditInside,
       .on_draws = [](Draws& draws) { GiveBall(draws, kEditedInside, "98"); }},
      {.name = "a second press",
       .act =
           [](TestDesk& desk) {
             if (!desk.Desk().Main()) return;
             Press(desk, desk.Main().cmdSave);
             Press(desk, desk.Main().cmdedit);
           }},
      {.name = "StorePending", .act = [](TestDesk& desk) { desk.Desk().StorePending(); }},
      {.name = "a close",
       .act =
           [](TestDesk& desk) {
             if (desk.Desk().Main()) desk.User().Close(desk.Main());
           },
       .closes_window = true},
      {.name = "a quit",
       .act =
           [](TestDesk& desk) {
             if (desk.Desk().Frame()) desk.User().Close(desk.Frame());
           },
       .closes_window = true,
       .quits = true},
  };
  return all;
}

// The draws without regard to their order: what is added inside may come first.
std::vector<std::string> Sorted(const Draws& draws) {
  std::vector<std::string> records;
  for (const store::DrawRecord& draw : draws) records.push_back(store::EncodeRecord(draw));
  std::sort(records.begin(), records.end());
  return records;
}

std::vector<std::string> SortedRecords(const std::string& bytes) {
  std::vector<std::string> records;
  for (std::size_t at = 0; at < bytes.size();) {
    store::DrawRecord draw;
    const std::size_t end = store::DecodeRecord(bytes, at, draw).offset;
    records.push_back(bytes.substr(at, end - at));
    at = end;
  }
  std::sort(records.begin(), records.end());
  return records;
}

class NestedActs : public testing::Test {
 protected:
  // The file holds what the procedure makes of the draws, and what was done inside if it was.
  void ExpectStored(TestDesk& desk, const Procedure& procedure, const Nested& nested, int count) {
    Draws without = SampleDraws(count);
    Draws with = without;
    nested.on_draws(with);
    const bool may_be_forgotten = procedure.can_be_forgotten && nested.activates;
    std::vector<std::vector<std::string>> allowed;
    if (may_be_forgotten) allowed.push_back(Sorted(without));
    procedure.on_draws(without);
    procedure.on_draws(with);
    allowed.push_back(Sorted(without));
    allowed.push_back(Sorted(with));
    const auto found = SortedRecords(desk.DatabaseBytes());
    EXPECT_NE(std::find(allowed.begin(), allowed.end(), found), allowed.end())
        << found.size() << " draws: " << testing::PrintToString(found);
  }

  // Each act in each yield of a procedure; how many were reached.
  int PlayInYields(const Procedure& procedure, int count) {
    int reached_in_all = 0;
    for (const Nested& nested : AllNested()) {
      bool reached = true;
      for (int yield = 1; reached && !HasFailure(); ++yield) {
        SCOPED_TRACE(std::string(nested.name) + " in yield " + std::to_string(yield) + " of " +
                     procedure.name + ", " + std::to_string(count) + " draws");
        reached = PlayInYield(procedure, nested, yield, count);
        reached_in_all += reached ? 1 : 0;
      }
    }
    return reached_in_all;
  }

 private:
  bool PlayInYield(const Procedure& procedure, const Nested& nested, int yield, int count) {
    TestDesk desk(SampleDraws(count));
    desk.may_leave_unused = true;
    procedure.prepare(desk);
    bool reached = false;
    bool had_window = false;
    bool had_frame = false;
    desk.pump.At(yield, [&] {
      reached = true;
      had_window = desk.Desk().Main() != nullptr;
      had_frame = desk.Desk().Frame() != nullptr;
      nested.act(desk);
    });
    procedure.run(desk);
    for (const std::string& text : desk.TakeBoxTexts()) EXPECT_EQ(text, kNotLoadedYet);
    if (!reached) return false;
    const bool closed = procedure.closes_window || (nested.closes_window && had_window);
    EXPECT_EQ(desk.Desk().Main() == nullptr, closed);
    EXPECT_EQ(desk.Desk().Ended(), nested.quits && had_frame);
    ExpectStored(desk, procedure, nested, count);
    desk.Desk().Stop();
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    ExpectStored(desk, procedure, nested, count);
    return true;
  }
};

// Many draws, and so few that each activation reads them anew.
const int kCounts[] = {40, 15};

TEST_F(NestedActs, InALoadLoseNoDraw) {
  for (const int count : kCounts) EXPECT_GT(PlayInYields(kLoad, count), 7);
}

TEST_F(NestedActs, InASaveLoseNoDraw) {
  for (const int count : kCounts) EXPECT_GE(PlayInYields(kSave, count), 7);
}

TEST_F(NestedActs, InAnEditLoseNoDraw) {
  for (const int count : kCounts) EXPECT_GT(PlayInYields(kEdit, count), 14);
}

// These two do not yield. Should they ever, this is where it is seen that no draw is lost.
TEST_F(NestedActs, InACloseLoseNoDraw) {
  for (const int count : kCounts) EXPECT_EQ(PlayInYields(kClose, count), 0);
}

TEST_F(NestedActs, InStorePendingLoseNoDraw) {
  for (const int count : kCounts) EXPECT_EQ(PlayInYields(kStorePending, count), 0);
}

// Add empties the boxes for what is typed; a load that went on behind it would put a draw under
// that, and the next edit would go to this draw.
TEST_F(NestedActs, AddInAnActivationPutsNoDrawUnderWhatIsTyped) {
  for (const int count : kCounts) {
    bool reached = true;
    int pressed = 0;
    for (int yield = 1; reached && !HasFailure(); ++yield) {
      SCOPED_TRACE("yield " + std::to_string(yield) + ", " + std::to_string(count) + " draws");
      TestDesk desk(SampleDraws(count));
      desk.may_leave_unused = true;
      StartQuietly(desk);
      reached = false;
      desk.pump.At(yield, [&] {
        reached = true;
        pressed += Press(desk, desk.Main().cmdAdd) ? 1 : 0;
      });
      desk.User().Switch(desk.Main());
      const bool is_adding = desk.Main().cmdSave.Enabled();
      EXPECT_EQ(desk.Session().shown_place == 0, is_adding);
      EXPECT_EQ(desk.Main().TxtBall01.Text().empty(), is_adding);
    }
    EXPECT_GT(pressed, 3);
  }
}

TEST_F(NestedActs, ADrawLookedAtInASaveIsNotTheOneOnShow) {
  TestDesk desk;
  StartQuietly(desk);
  TypeDraw(desk, Added());
  desk.Main().txtDate.SetText("10/12/2005");
  desk.pump.At(1, [&] { desk.User().Pick(desk.Main().ListView1, 5); });
  desk.User().Click(desk.Main().cmdSave);
  EXPECT_EQ(desk.TakeBoxTexts(),
            Texts{"Date field is incorrect please enter in this format 00/00/00"});
  EXPECT_EQ(desk.Main().TxtBall01.Text(), "01");
  EXPECT_EQ(desk.Session().shown_place, 0);
  EXPECT_FALSE(desk.Main().cmdedit.Enabled());
}

// While the desk asks about a file that another program changed. What is answered last is done, and
// the other program's draw is there afterwards.
void PlayInABox(const Procedure& procedure, const Nested& nested, base::Answer answer, int count) {
  TestDesk desk(SampleDraws(count));
  procedure.prepare(desk);
  Draws foreign = SampleDraws(count);
  foreign.push_back(Draw({41, 42, 43, 44, 45, 46, 47}, "We", "07/12/05"));
  desk.WriteDatabase(Encode(foreign));
  int boxes = 0;
  desk.boxes.answers = {answer};
  desk.boxes.on_ask = [&] {
    if (++boxes == 1) nested.act(desk);
  };
  procedure.run(desk);
  EXPECT_GE(boxes, 1);
  EXPECT_TRUE(!procedure.closes_window || desk.Desk().Main() == nullptr);
  desk.Desk().Stop();
  EXPECT_TRUE(desk.Desk().Ended());

  std::vector<std::vector<std::string>> allowed;
  for (const bool with_procedure : {false, true}) {
    for (const bool with_nested : {false, true}) {
      Draws draws = foreign;
      if (with_nested) nested.on_draws(draws);
      if (with_procedure) procedure.on_draws(draws);
      allowed.push_back(Sorted(draws));
    }
  }
  const auto found = SortedRecords(desk.DatabaseBytes());
  EXPECT_NE(std::find(allowed.begin(), allowed.end(), found), allowed.end())
      << found.size() << " draws: " << testing::PrintToString(found);
}

TEST_F(NestedActs, InABoxLoseNoDraw) {
  for (const Procedure* procedure : {&kSave, &kEdit, &kClose, &kStorePending}) {
    for (const Nested& nested : AllNested()) {
      for (const base::Answer answer : {base::Answer::kYes, base::Answer::kNo}) {
        SCOPED_TRACE(std::string(nested.name) + " in a box of " + procedure->name +
                     (answer == base::Answer::kYes ? ", yes" : ", no"));
        PlayInABox(*procedure, nested, answer, 40);
      }
    }
  }
}

}  // namespace
}  // namespace test
