// How long the wheel window takes on the delivered library.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "support/test_desk.h"
#include "wheels/wheel_wizard.h"

namespace {

namespace fs = std::filesystem;

// A desk after a scan with the wheel window open on the delivered library.
class WheelDesk {
 public:
  WheelDesk() : desk_(test::SampleDraws(300)) {
    fs::create_directories(desk_.folder / "wheels");
    fs::create_directories(desk_.folder / "Reports");
    fs::copy_file(fs::path(DESK_BENCH_DATA) / "wheels" / "wheels.ini",
                  desk_.folder / "wheels" / "wheels.ini");
    desk_.settings.Save("velmonte", "390", "Tips", "False");
    desk_.settings.Save("velmonte", "searchs", "lastwincheck", "1 2 3 4 5 6");
    desk_.Start();
    User().Click(desk_.Main().CmdScan);
    User().Click(desk_.Main().lblbuttons(2));
  }
  wheels::WheelWizard& Window() { return *desk_.Desk().Wheels(); }
  base::User& User() { return desk_.User(); }

  // The wheel of the most lines.
  void ChooseLargest() {
    User().Pick(Window().CboMatch, 2);
    const int last = Window().List2.ListCount() - 1;
    User().Pick(Window().List1, 8);
    User().Pick(Window().List2, last);
    User().Click(Window().cmdwizard(1));
  }

 private:
  test::TestDesk desk_;
};

void ListOfWheels(benchmark::State& state) {
  WheelDesk desk;
  for (auto _ : state) {
    desk.Window().Choosing().CmbWheelPick_Click();
    benchmark::DoNotOptimize(desk.Window().List2.ListCount());
  }
}
BENCHMARK(ListOfWheels)->Unit(benchmark::kMillisecond);

void GenerateLargest(benchmark::State& state) {
  WheelDesk desk;
  desk.ChooseLargest();
  for (auto _ : state) desk.User().Click(desk.Window().cmdwizard(1));
  state.counters["lines"] = desk.Window().LstWheel.RowCount();
}
BENCHMARK(GenerateLargest)->Unit(benchmark::kMillisecond);

// The rows of the hits report; the page is written and flushed once besides.
void HitsOverLargest(benchmark::State& state) {
  WheelDesk desk;
  desk.ChooseLargest();
  const int lines = desk.Window().LstWheel.RowCount();
  for (auto _ : state) {
    for (int line = 1; line <= lines; ++line) {
      desk.Window().HitCheck().GetHits(line);
      benchmark::DoNotOptimize(desk.Window().HitCheck().GetCurrentLine(line));
    }
  }
}
BENCHMARK(HitsOverLargest)->Unit(benchmark::kMillisecond);

void HitsReport(benchmark::State& state) {
  WheelDesk desk;
  desk.ChooseLargest();
  for (auto _ : state) desk.User().Click(desk.Window().cmdwizard(3));
}
BENCHMARK(HitsReport)->Unit(benchmark::kMillisecond);

}  // namespace
