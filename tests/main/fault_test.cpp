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
#include <system_error>
#include <utility>
#include <vector>

#include "main/draw_lists.h"
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
    draws.back().day = main_window::TwoLetterDay(draws.back().day);
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
      const Draws draws = Judge(desk, old_draws, new_draws, states, call);
      if (error == EIO) ExpectWorksOn(desk, draws);
    }
    return 0;
  }

  // What was told is not done, and what was not told is done. The draws that are there.
  Draws Judge(TestDesk& desk, const Draws& old_draws, const Draws& new_draws, std::size_t states,
              const std::string& call) {
    const bool told = !desk.TakeBoxTexts().empty();
    (told ? told_ : done_)++;
    const Draws& draws = told ? old_draws : new_draws;
    EXPECT_EQ(Encode(DrawsOf(desk)), Encode(draws));
    for (const std::string& name : NamesIn(desk.folder / "DataBases")) {
      // One that could not be taken away goes with the next rewrite.
      EXPECT_TRUE(name.find(".new~") == std::string::npos || call.starts_with("unlink")) << name;
    }
    const std::size_t kept = NamesIn(desk.folder / "DataBases" / "Earlier").size();
    EXPECT_TRUE(!told || kept == states) << kept << " earlier states";
    return draws;
  }

  // What failed does no harm to the change that follows.
  static void ExpectWorksOn(TestDesk& desk, Draws draws) {
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

// --- Two desks on one folder

constexpr int kPlaceOfFirst = 5;
constexpr int kPlaceOfSecond = 20;
constexpr int kMostEdits = 60;

std::string BallNumber(int edit) { return std::to_string(10 + edit % 90); }

// A desk in a process of its own. It edits one draw over and over, tells the number of each edit
// that was stored, and kills itself at one of its file calls.
class KilledDesk {
 public:
  KilledDesk(TestDesk& desk, int call) {
    if (pipe(told_) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    process_ = fork();
    if (process_ == 0) Work(desk, call);
    close(told_[1]);
  }
  ~KilledDesk() {
    Wait();
    close(told_[0]);
  }
  KilledDesk(const KilledDesk&) = delete;
  KilledDesk& operator=(const KilledDesk&) = delete;

  bool IsGone() {
    if (process_ > 0 && waitpid(process_, &status_, WNOHANG) == process_) process_ = 0;
    return process_ == 0;
  }
  void Wait() {
    while (process_ > 0 && waitpid(process_, &status_, 0) < 0 && errno == EINTR) {
    }
    process_ = 0;
  }
  bool WasKilled() const { return WIFSIGNALED(status_) && WTERMSIG(status_) == SIGKILL; }
  // What it tells next: 0 that it has started, else the number of an edit. Waits for it; -1 at the
  // end.
  int Next() {
    unsigned char number = 0;
    ssize_t got = 0;
    while ((got = read(told_[0], &number, 1)) < 0 && errno == EINTR) {
    }
    return got == 1 ? number : -1;
  }

 private:
  [[noreturn]] void Work(TestDesk& desk, int call) {
    const auto tell = [this](unsigned char number) { (void)!write(told_[1], &number, 1); };
    SystemCalls calls;
    calls.KillBefore(call);
    StartQuietly(desk);
    tell(0);
    for (int edit = 1; edit <= kMostEdits; ++edit) {
      desk.boxes.shown.clear();
      EditDraw(desk, kPlaceOfSecond, BallNumber(edit));
      if (desk.boxes.shown.empty()) tell(static_cast<unsigned char>(edit));
    }
    _exit(0);
  }

  int told_[2] = {-1, -1};
  pid_t process_ = 0;
  int status_ = 0;
};

// What one round of two desks came to.
struct Round {
  int stored_by_first = 0;
  int refused_to_first = 0;
  int stored_by_second = 0;
  bool was_killed = false;
};

class TwoDesks : public testing::Test {
 protected:
  enum class Order { kSecondFirst, kFirstFirst, kAtOnce };

  // The first desk edits until the second is gone, and then once more.
  static Round Play(Order order, int call) {
    Round round;
    TestDesk desk;
    // The copy has its own desk on the folder, whatever this process has open.
    TestDesk copy;
    const std::filesystem::path folder_of_copy = std::exchange(copy.folder, desk.folder);
    if (order == Order::kFirstFirst) StartQuietly(desk);
    std::string last_stored;
    {
      KilledDesk second(copy, call);
      if (order == Order::kSecondFirst) second.Next();
      if (order != Order::kFirstFirst) StartQuietly(desk);
      bool is_last = false;
      for (int edit = 1; !is_last; ++edit) {
        is_last = second.IsGone();
        const std::string ball = BallNumber(edit);
        const bool stored = Edits(desk, ball, is_last);
        if (stored) last_stored = ball;
        (stored ? round.stored_by_first : round.refused_to_first)++;
      }
      for (int number = second.Next(); number >= 0; number = second.Next()) {
        round.stored_by_second = number;
      }
      second.Wait();
      round.was_killed = second.WasKilled();
    }
    copy.folder = folder_of_copy;
    desk.Desk().Stop();
    ExpectDraws(desk, last_stored, round.stored_by_second);
    return round;
  }

 private:
  // One edit; the last one is made again behind the question whether to load the file again.
  static bool Edits(TestDesk& desk, const std::string& ball, bool is_last) {
    EditDraw(desk, kPlaceOfFirst, ball);
    const Texts told = desk.TakeBoxTexts();
    for (const std::string& text : told) {
      EXPECT_TRUE(text == kInUse || text == kChanged) << text;
    }
    if (told.empty()) return true;
    if (!is_last) return false;
    EXPECT_EQ(told, Texts{kChanged});
    EditDraw(desk, kPlaceOfFirst, ball);
    EXPECT_EQ(desk.TakeBoxTexts(), Texts());
    return true;
  }

  // Every draw is there: the last edit of each desk, or the one in which the second was killed.
  static void ExpectDraws(TestDesk& desk, const std::string& first, int second) {
    Draws draws = SampleDraws(kDraws);
    GiveBall(draws, kPlaceOfFirst, first);
    Draws next = draws;
    if (second > 0) GiveBall(draws, kPlaceOfSecond, BallNumber(second));
    GiveBall(next, kPlaceOfSecond, BallNumber(second + 1));
    const std::string bytes = desk.DatabaseBytes();
    EXPECT_TRUE(bytes == Encode(draws) || bytes == Encode(next)) << bytes.size() << " bytes";
    EXPECT_EQ(Encode(DrawsOf(desk)), bytes);
  }
};

TEST_F(TwoDesks, OfWhichOneIsKilledLoseNoDraw) {
  std::mt19937 random(5);
  Round sum;
  int killed = 0;
  for (int round = 0; round < 45 && !HasFailure(); ++round) {
    const auto order = static_cast<Order>(round % 3);
    const int call = 1 + static_cast<int>(random() % 500);
    SCOPED_TRACE("round " + std::to_string(round) + ", killed at call " + std::to_string(call));
    const Round result = Play(order, call);
    sum.stored_by_first += result.stored_by_first;
    sum.refused_to_first += result.refused_to_first;
    sum.stored_by_second += result.stored_by_second;
    killed += result.was_killed ? 1 : 0;
  }
  RecordProperty("killed", killed);
  RecordProperty("stored by the first", sum.stored_by_first);
  RecordProperty("refused to the first", sum.refused_to_first);
  RecordProperty("stored by the second", sum.stored_by_second);
  EXPECT_GT(killed, 40);
  EXPECT_GT(sum.stored_by_first, 45);
  EXPECT_GT(sum.stored_by_second, 45);
}

}  // namespace
}  // namespace test
