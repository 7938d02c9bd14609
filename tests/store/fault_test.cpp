#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "store/draw_lists.h"
#include "support/desk_acts.h"
#include "support/system_calls.h"
#include "support/test_desk.h"

// Every single file call of whatever reads or changes the database fails once; and two desks work
// on one folder while one of them is killed. The draws are counted afterwards.

namespace test {
namespace {

using Texts = std::vector<std::string>;
using Draws = std::vector<store::DrawRecord>;

constexpr int kDraws = 40;
constexpr int kMostCalls = 500;
const char* const kInUse = "The database is in use by another desk, nothing was changed";
const char* const kChanged =
    "UK-National-Lottery was changed by another program since it was opened. Nothing was saved. "
    "Load it again?";

const store::DrawRecord& Added() {
  static const store::DrawRecord draw = Draw({1, 2, 3, 4, 5, 6, 7}, "Sa", "10/12/05");
  return draw;
}

void GiveBall(Draws& draws, int place, const std::string& ball) {
  draws[static_cast<std::size_t>(place - 1)].b[5] = ball;
}

void RemoveThird(Draws& draws) { draws.erase(draws.begin() + 2); }

// The draws that a desk finds which has just begun.
Draws DrawsOf(TestDesk& desk) {
  Draws draws;
  store::Session session(desk.host_files);
  session.database.Open((desk.folder / "DataBases" / desk.database).string());
  store::WalkFile(session, [&] { draws.push_back(session.current_draw); });
  return draws;
}

// The draws of the list; a day typed in full is stored in two letters.
Draws DrawsOnShow(TestDesk& desk) {
  Draws draws;
  for (const std::string& line : desk.Main().List7.Rows()) {
    store::ParseDrawLine(line, draws.emplace_back());
    draws.back().day = store::TwoLetterDay(draws.back().day);
  }
  return draws;
}

Texts NamesIn(const std::filesystem::path& folder) {
  Texts names;
  if (!std::filesystem::exists(folder)) return names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.push_back(entry.path().filename().string());
  }
  return names;
}

// One way to change the database.
struct Operation {
  const char* name;
  std::function<void(TestDesk&)> prepare;
  std::function<void(TestDesk&)> run;
  std::function<void(Draws&)> on_old;  // what is there before, made of the first draws
  std::function<void(Draws&)> on_new;
};

const std::vector<Operation>& Operations() {
  const auto nothing = [](Draws&) {};
  const auto remove = [](TestDesk& desk) { RemoveRow(desk, 3); };
  static const std::vector<Operation> all{
      {"save", [](TestDesk& desk) { TypeDraw(desk, Added()); },
       [](TestDesk& desk) { desk.User().Click(desk.Main().cmdSave); }, nothing,
       [](Draws& draws) { draws.push_back(Added()); }},
      {"edit", [](TestDesk& desk) { TypeEdit(desk, 8, "99"); },
       [](TestDesk& desk) { desk.User().Click(desk.Main().cmdedit); }, nothing,
       [](Draws& draws) { GiveBall(draws, 8, "99"); }},
      {"close", remove, [](TestDesk& desk) { desk.User().Close(desk.Main()); }, nothing,
       RemoveThird},
      {"StorePending", remove, [](TestDesk& desk) { desk.Desk().StorePending(); }, nothing,
       RemoveThird},
      {"undo", [](TestDesk& desk) { EditDraw(desk, 8, "99"); },
       [](TestDesk& desk) { desk.Desk().Undo(); }, [](Draws& draws) { GiveBall(draws, 8, "99"); },
       nothing},
  };
  return all;
}

class Fault : public testing::Test {
 protected:
  // Lets each file call of the operation fail in turn; how many there are.
  int FailEach(const Operation& operation, int error) {
    Draws old_draws = SampleDraws(kDraws);
    Draws new_draws = old_draws;
    operation.on_old(old_draws);
    operation.on_new(new_draws);
    for (int n = 1; n < kMostCalls && !HasFailure(); ++n) {
      TestDesk desk;
      StartQuietly(desk);
      operation.prepare(desk);
      const std::size_t states = NamesIn(desk.folder / "DataBases" / "Earlier").size();
      std::string call;
      if (!RunWithFault(desk, operation.run, n, error, call)) {
        EXPECT_EQ(desk.TakeBoxTexts(), Texts());
        EXPECT_EQ(Encode(DrawsOf(desk)), Encode(new_draws));
        return n - 1;
      }
      SCOPED_TRACE(std::string(operation.name) + ", call " + std::to_string(n) + ", " + call);
      Judge(desk, old_draws, new_draws, states);
    }
    return 0;
  }

  // What was told is not done, and what was not told is done, now and later.
  void Judge(TestDesk& desk, const Draws& old_draws, const Draws& new_draws, std::size_t states) {
    const bool told = !desk.TakeBoxTexts().empty();
    (told ? told_ : done_)++;
    Draws draws = told ? old_draws : new_draws;
    EXPECT_EQ(Encode(DrawsOf(desk)), Encode(draws));
    for (const std::string& name : NamesIn(desk.folder / "DataBases")) {
      EXPECT_EQ(name.find(".new~"), std::string::npos) << name;
    }
    const std::size_t kept = NamesIn(desk.folder / "DataBases" / "Earlier").size();
    EXPECT_TRUE(!told || kept == states) << kept << " earlier states";
    if (!desk.Desk().Main()) return;
    EXPECT_EQ(Encode(DrawsOnShow(desk)), Encode(draws));
    EditDraw(desk, 20, "97");
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    GiveBall(draws, 20, "97");
    EXPECT_EQ(Encode(DrawsOf(desk)), Encode(draws));
  }

  // Runs something whose nth file call fails, which is named then; false if it has not so many.
  static bool RunWithFault(TestDesk& desk, const std::function<void(TestDesk&)>& run, int n,
                           int error, std::string& call) {
    SystemCalls calls;
    calls.FailFromNow(n, error);
    run(desk);
    if (!calls.HasStruck()) return false;
    call = calls.Texts(desk.folder.string())[static_cast<std::size_t>(n - 1)];
    return true;
  }

  int told_ = 0;
  int done_ = 0;
};

TEST_F(Fault, InAnyCallOfAChangeLosesNoDraw) {
  for (const Operation& operation : Operations()) {
    int calls = 0;
    for (const int error : {EIO, ENOSPC}) {
      SCOPED_TRACE("errno " + std::to_string(error));
      calls = FailEach(operation, error);
      if (HasFailure()) return;
      EXPECT_GT(calls, 5) << operation.name;
    }
    RecordProperty(operation.name, calls);
  }
  EXPECT_GT(told_, 50);
  EXPECT_GT(done_, 50);
}

TEST_F(Fault, InAnyCallOfAStartLosesNoDraw) {
  for (const int error : {EIO, ENOSPC}) {
    int told = 0;
    int n = 1;
    for (; n < kMostCalls && !HasFailure(); ++n) {
      TestDesk desk;
      std::string call;
      const bool struck = RunWithFault(desk, StartQuietly, n, error, call);
      SCOPED_TRACE("call " + std::to_string(n) + ", " + call);
      if (!desk.TakeBoxTexts().empty()) ++told;
      Draws draws = SampleDraws(kDraws);
      EXPECT_EQ(desk.DatabaseBytes(), Encode(draws));
      ASSERT_NE(desk.Desk().Main(), nullptr);
      if (desk.Main().cmdedit.Enabled()) {
        EditDraw(desk, 20, "97");
        if (desk.TakeBoxTexts().empty()) GiveBall(draws, 20, "97");
      }
      desk.Session().data_base_changed = true;
      desk.Desk().Stop();
      EXPECT_EQ(desk.TakeBoxTexts(), Texts());
      EXPECT_EQ(Encode(DrawsOf(desk)), Encode(draws));
      if (!struck) break;
    }
    RecordProperty("start", n - 1);
    EXPECT_GT(n, 10);
    EXPECT_GT(told, 3);
  }
}

}  // namespace
}  // namespace test
