// How long the desk takes on 32,767 draws, the most that a database can hold, and what a plain loop
// over the same bytes takes.

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "base/controls/list_controls.h"
#include "support/test_desk.h"

namespace {

constexpr int kDraws = 32767;

const std::vector<store::DrawRecord>& Draws() {
  static const auto draws = test::SampleDraws(kDraws);
  return draws;
}

// Opening: index, draw lines, table and the first draw on show.
void OpenDatabase(benchmark::State& state) {
  test::TestDesk desk(Draws());
  desk.Start();
  for (auto _ : state) {
    state.PauseTiming();
    desk.User().Close(desk.Main());
    state.ResumeTiming();
    desk.User().Choose(desk.Frame().MnuMainWindow);
    benchmark::DoNotOptimize(desk.Main().ListView1.RowCount());
  }
}
BENCHMARK(OpenDatabase)->Unit(benchmark::kMillisecond);

// An edit of one draw in the middle: every line, the file on the disk, and the draw on show.
void EditOneDraw(benchmark::State& state) {
  test::TestDesk desk(test::SampleDraws(kDraws - 1));
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  int ball = 1;
  for (auto _ : state) {
    desk.User().Pick(desk.Main().List7, kDraws / 2);
    desk.User().Click(desk.Main().cmdedit);
    desk.Main().TxtBall06.SetText(std::to_string(10 + ball++ % 80));
    desk.User().Click(desk.Main().cmdedit);
  }
  if (!desk.boxes.shown.empty()) state.SkipWithError("an edit was refused");
}
BENCHMARK(EditOneDraw)->Unit(benchmark::kMillisecond)->Iterations(30);

// One new draw, typed and saved.
void SaveOneDraw(benchmark::State& state) {
  test::TestDesk desk(test::SampleDraws(kDraws - 100));
  desk.settings.Save("velmonte", "390", "Tips", "False");
  desk.Start();
  for (auto _ : state) {
    state.PauseTiming();
    desk.User().Click(desk.Main().cmdAdd);
    for (int k = 0; k < 7; ++k) desk.Main().BallBox(k).SetText(std::to_string(11 + k));
    desk.Main().TxtBall07.SetText("Sa");
    desk.Main().txtDate.SetText("05/12/05");
    state.ResumeTiming();
    desk.User().Click(desk.Main().cmdSave);
  }
  if (!desk.boxes.shown.empty()) state.SkipWithError("a save was refused");
}
BENCHMARK(SaveOneDraw)->Unit(benchmark::kMillisecond)->Iterations(30);

// The close behind a removal, which writes the table to the file.
void CloseAfterARemoval(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    test::TestDesk desk(Draws());
    desk.Start();
    desk.User().Pick(desk.Main().ListView1, kDraws / 2);
    desk.User().Click(desk.Main().Command18);
    state.ResumeTiming();
    desk.User().Close(desk.Main());
    state.PauseTiming();
    if (desk.DatabaseBytes().size() != (kDraws - 1) * 44u) state.SkipWithError("not written");
    state.ResumeTiming();
  }
}
BENCHMARK(CloseAfterARemoval)->Unit(benchmark::kMillisecond)->Iterations(10);

// A full scan through the window's own procedure, yields included.
void FullScan(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    test::TestDesk desk(Draws());
    desk.settings.Save("velmonte", "390", "Tips", "False");
    desk.Start();
    state.ResumeTiming();
    desk.User().Click(desk.Main().CmdScan);
    benchmark::DoNotOptimize(desk.Main().ProgressBar1(1).Value());
    state.PauseTiming();
    if (desk.Session().scan_tally < kDraws - 1) state.SkipWithError("the scan ended early");
    state.ResumeTiming();
  }
}
BENCHMARK(FullScan)->Unit(benchmark::kMillisecond)->Iterations(10);

// The least work that could count the same balls.
void PlainLoop(benchmark::State& state) {
  const std::string bytes = test::Encode(Draws());
  for (auto _ : state) {
    std::array<int, 100> counts{};
    std::size_t at = 0;
    const auto word = [&] {
      const auto low = static_cast<unsigned char>(bytes[at]);
      const auto high = static_cast<unsigned char>(bytes[at + 1]);
      at += 2;
      return static_cast<std::size_t>(low | high << 8);
    };
    while (at < bytes.size()) {
      at += 2;
      for (int field = 0; field < 9; ++field) {
        const std::size_t length = word();
        if (field != 6 && field != 8 && length == 2) {
          ++counts[static_cast<std::size_t>((bytes[at] - '0') * 10 + bytes[at + 1] - '0')];
        }
        at += length;
      }
    }
    benchmark::DoNotOptimize(counts);
  }
}
BENCHMARK(PlainLoop)->Unit(benchmark::kMillisecond);

// A sorted list filled with as many rows as there are draws, then read once.
void FillSortedList(benchmark::State& state) {
  struct Window : base::Form {
    Window() : Form("Window", base::FormRole::kChild) { list.SetSorted(); }
    base::ListBox list{*this, "list"};
  } window;
  std::vector<std::string> rows;
  for (int i = 0; i < kDraws; ++i)
    rows.push_back(store::DrawLine(Draws()[static_cast<std::size_t>(i)]));
  for (auto _ : state) {
    window.list.Clear();
    for (const std::string& row : rows) window.list.AddItem(row);
    benchmark::DoNotOptimize(window.list.Row(0));
  }
}
BENCHMARK(FillSortedList)->Unit(benchmark::kMillisecond);

// A desk with a full scan behind it, on which the analyses work.
class Scanned : public benchmark::Fixture {
 public:
  void SetUp(benchmark::State&) override {
    desk_ = std::make_unique<test::TestDesk>(Draws());
    desk_->settings.Save("velmonte", "390", "Tips", "False");
    desk_->Start();
    desk_->User().Click(desk_->Main().CmdScan);
    desk_->User().Click(desk_->Main().Label5);
  }
  void TearDown(benchmark::State&) override { desk_.reset(); }

 protected:
  void Apply(const std::string& row) {
    base::ListBox& rows = desk_->Main().LstMainWinSettings;
    for (int i = 0; i < rows.ListCount(); ++i) {
      if (rows.Row(i) == row) desk_->User().Pick(rows, i);
    }
    desk_->User().DoubleClick(rows);
  }
  std::unique_ptr<test::TestDesk> desk_;
};

BENCHMARK_F(Scanned, DueReport)(benchmark::State& state) {
  for (auto _ : state) desk_->User().Pick(desk_->Main().Combo11, 1);
}
BENCHMARK_F(Scanned, Statistics)(benchmark::State& state) {
  for (auto _ : state) desk_->User().Choose(desk_->Frame().MnuStdDev);
}
BENCHMARK_F(Scanned, LowToHigh)(benchmark::State& state) {
  for (auto _ : state) Apply("Low to high");
}
BENCHMARK_F(Scanned, ShowPastTwentyDraws)(benchmark::State& state) {
  for (auto _ : state) Apply("Show past 20 draws");
}
BENCHMARK_F(Scanned, WinnerScan)(benchmark::State& state) {
  for (int k = 0; k < 6; ++k) desk_->Main().Txtb1(k).SetText(std::to_string(7 * k + 1));
  for (auto _ : state) desk_->User().Click(desk_->Main().Labscanwinners);
}

}  // namespace
